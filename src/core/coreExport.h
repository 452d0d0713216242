#pragma once

#include <QtGlobal>

/// Marks what the core library exports. An own implementation of the core library defines
/// KESTROVA_CORE_BUILD while it compiles; everybody else imports.
#if defined(KESTROVA_CORE_BUILD)
#define KESTROVA_CORE_EXPORT Q_DECL_EXPORT
#else
#define KESTROVA_CORE_EXPORT Q_DECL_IMPORT
#endif

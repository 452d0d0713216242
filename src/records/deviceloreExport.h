#pragma once

#include <QtGlobal>

/// Marks what the library exports; everything else stays hidden.
#if defined(KESTROVA_DEVICELORE_BUILD)
#define KESTROVA_DEVICELORE_EXPORT Q_DECL_EXPORT
#else
#define KESTROVA_DEVICELORE_EXPORT Q_DECL_IMPORT
#endif

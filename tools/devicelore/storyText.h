#pragma once

#include "common/answer.h"

#include <QPair>

namespace kestrova::inspector {

using StoryFields = QVector<QPair<QString, QString>>;

/// A heading, and indented below it a "name  value" line for each field with a value.
QString sectionText(QString const & heading, StoryFields const & fields);

/// "level 2", and whether the caller's level is enough.
QString neededText(int needed, int callersLevel);

} // namespace kestrova::inspector

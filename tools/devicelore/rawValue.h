#pragma once

#include <QJsonValue>
#include <QString>
#include <QVariant>

namespace kestrova::inspector {

// Databases hold anything: long texts are cut, and control characters shown by their numbers.

/// A text of a database, in one line.
QString printable(QString const & text);

/// The same between apostrophes.
QString quoted(QString const & text);

/// A value as it stands in a database, spelled as in SQL: 3, 0.5, 'text', x'00ff' or NULL.
QString rawText(QVariant const & value);

/// The whole value; a blob as its hexadecimal digits.
QJsonValue rawJson(QVariant const & value);

} // namespace kestrova::inspector

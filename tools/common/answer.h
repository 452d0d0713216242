#pragma once

#include "common/failure.h"

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

namespace kestrova::tools {

/// What a command found: the same facts as text for people and as JSON for programs.
struct Answer {
    QString text;
    QJsonValue json;
    ExitCode exitCode = ExitOk;
    QString complaint; ///< for stderr, with an exit code other than ExitOk
};

/// Rows under a heading, in columns as wide as their widest cell.
QString tableText(QStringList const & heading, QVector<QStringList> const & rows);

/// "name  value" lines with the values in one column. A field with an empty value has no line.
QString fieldsText(QVector<QPair<QString, QString>> const & fields);

/// The JSON text of an answer, with sorted keys.
QString jsonText(QJsonValue const & value);

} // namespace kestrova::tools

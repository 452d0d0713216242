#pragma once

#include "support/databaseFolder.h"
#include "support/program.h"
#include "support/qtPrint.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

namespace kestrova::test {

/// The tool in a folder of its own, where it finds only what a test puts there.
class ToolFolder : public DatabaseFolder {
public:
    ToolFolder()
    {
        if (!QFile::copy(QStringLiteral(KESTROVA_TOOL), path(QStringLiteral("devicelore"))))
            throw std::runtime_error("cannot copy the tool");
    }

    /// \a starter is a program, with arguments, that starts the tool in its turn.
    ProgramResult run(QStringList const & arguments, QStringList const & starter = {}) const
    {
        QStringList const words = starter + QStringList{path(QStringLiteral("devicelore"))} + arguments;
        return runProgram(words.first(), words.mid(1));
    }

    /// The arguments in one text, separated by blanks.
    ProgramResult run(char const * arguments, QStringList const & starter = {}) const
    {
        return run(QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts), starter);
    }

    QJsonValue json(char const * arguments) const
    {
        QJsonParseError error;
        QJsonDocument const document = QJsonDocument::fromJson(
            run((std::string(arguments) + " --json").c_str()).output.toUtf8(), &error);
        if (error.error != QJsonParseError::NoError)
            throw std::runtime_error(error.errorString().toStdString());
        return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    }
};

} // namespace kestrova::test

#include "support/program.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include <stdexcept>

// What `./dev help` lists is what ./dev can do. No command but help is run.

using kestrova::test::runProgram;

namespace {

QString const dev = QStringLiteral(KESTROVA_ROOT "/dev");

/// The commands that the help lists, each at the start of its lines.
QStringList listedCommands()
{
    static QRegularExpression const line(QStringLiteral("^  ([a-z][a-z-]*)"),
                                         QRegularExpression::MultilineOption);
    QStringList commands;
    QString const help = runProgram(dev, {QStringLiteral("help")}).output;
    for (auto match = line.globalMatch(help); match.hasNext();)
        commands.append(match.next().captured(1));
    return commands;
}

/// The first word of what each command runs, by the command; from the `case` at the end of the script.
QMap<QString, QString> dispatchedCommands()
{
    static QRegularExpression const row(QStringLiteral("^([a-z][a-z-]*)(?: \\| [a-z-]+)*\\)\\s+(\\w+)"),
                                        QRegularExpression::MultilineOption);
    QFile file(dev);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(dev.toStdString());
    QString const script = QString::fromUtf8(file.readAll());
    QMap<QString, QString> words;
    for (auto match = row.globalMatch(script, script.lastIndexOf(QLatin1String("\ncase ")));
         match.hasNext();) {
        QRegularExpressionMatch const found = match.next();
        words.insert(found.captured(1), found.captured(2));
    }
    return words;
}

/// What each word is to the script once all of it has been read: "function", "file", or "nothing".
QStringList kindsInScript(QStringList const & words)
{
    QString const ask = QStringLiteral(
        "trap 'for word; do type -t \"$word\" || echo nothing; done' EXIT; source \"$0\" help >&2");
    return runProgram(QStringLiteral("bash"), QStringList{QStringLiteral("-c"), ask, dev} + words)
        .output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

TEST(DevCommands, AreThoseThatTheHelpLists)
{
    QStringList listed = listedCommands();
    EXPECT_GT(listed.size(), 10);
    listed.sort();
    EXPECT_EQ(dispatchedCommands().keys().join(QLatin1Char(' ')).toStdString(),
              listed.join(QLatin1Char(' ')).toStdString());
}

TEST(DevCommands, RunSomethingThatThereIs)
{
    QMap<QString, QString> const commands = dispatchedCommands();
    QStringList const kinds = kindsInScript(commands.values());
    ASSERT_EQ(kinds.size(), commands.size());
    QStringList dead;
    for (int i = 0; i < kinds.size(); ++i) {
        if (kinds.at(i) == QLatin1String("nothing"))
            dead.append(commands.keys().at(i));
    }
    EXPECT_EQ(dead.join(QLatin1Char(' ')).toStdString(), "");
    EXPECT_EQ(kindsInScript({QStringLiteral("noSuchFunction")}), QStringList{QStringLiteral("nothing")});
}

TEST(DevCommands, RunEachCheckThatIsListed)
{
    QStringList const lines =
        runProgram(dev, {QStringLiteral("check")}).output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_GT(lines.size(), 5);
    for (QString const & line : lines) {
        QString const name = line.section(QLatin1Char(' '), 0, 0);
        EXPECT_EQ(kindsInScript({QStringLiteral("check_") + name}), QStringList{QStringLiteral("function")})
            << name.toStdString();
    }
}

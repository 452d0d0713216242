#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <stdexcept>

// Runs every command that a document shows in a ```console block, and compares what it prints with what
// stands there. The commands of one document run in one folder, in order. "..." in the expected text stands
// for anything.

namespace {

struct Example {
    QString command;
    QString expected;
};

QString textOf(QString const & path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(path.toStdString());
    return QString::fromUtf8(file.readAll());
}

QVector<Example> examplesIn(QString const & document)
{
    static QRegularExpression const block(QStringLiteral("^```console\n(.*?)^```$"),
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    QVector<Example> examples;
    for (auto match = block.globalMatch(document); match.hasNext();) {
        for (QString const & line : match.next().captured(1).split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1String("$ ")))
                examples.append({line.mid(2), QString()});
            else if (!examples.isEmpty())
                examples.last().expected += line + QLatin1Char('\n');
        }
    }
    return examples;
}

QString run(QString const & command, QString const & folder)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"),
                       QStringLiteral(KESTROVA_TOOLS ":") + environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("SAMPLES"), QStringLiteral(KESTROVA_ROOT "/samples"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("bash"), {QStringLiteral("-c"), command});
    if (!process.waitForFinished(60000))
        return QStringLiteral("(did not end: %1)").arg(process.errorString());
    return QString::fromUtf8(process.readAll());
}

bool fits(QString const & output, QString const & expected)
{
    QString pattern = QRegularExpression::escape(expected.trimmed());
    pattern.replace(QStringLiteral("\\.\\.\\."), QStringLiteral(".*"));
    QRegularExpression const expression(QRegularExpression::anchoredPattern(pattern),
                                        QRegularExpression::DotMatchesEverythingOption);
    return expression.match(output.trimmed()).hasMatch();
}

QStringList documents()
{
    QStringList found{QStringLiteral(KESTROVA_ROOT "/README.md"),
                      QStringLiteral(KESTROVA_ROOT "/CONTRIBUTING.md"),
                      QStringLiteral(KESTROVA_ROOT "/samples/README.md")};
    QDirIterator files(QStringLiteral(KESTROVA_ROOT "/docs"), {QStringLiteral("*.md")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(files.next());
    return found;
}

} // namespace

TEST(ConsoleExamples, PrintWhatTheDocumentsShow)
{
    int count = 0;
    for (QString const & document : documents()) {
        QTemporaryDir const folder;
        for (Example const & example : examplesIn(textOf(document))) {
            QString const output = run(example.command, folder.path());
            EXPECT_TRUE(fits(output, example.expected))
                << document.toStdString() << ": " << example.command.toStdString() << "\nprinted\n"
                << output.toStdString() << "\nbut the document shows\n"
                << example.expected.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 5);
}

// The C++ examples of the guide are one program; what each prints stands below it in a ```text block.
TEST(GuideExamples, PrintWhatTheGuideShows)
{
    static QRegularExpression const block(QStringLiteral("^```text\n(.*?)^```$"),
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    QString expected;
    QString const guide = textOf(QStringLiteral(KESTROVA_ROOT "/docs/guide.md"));
    for (auto match = block.globalMatch(guide); match.hasNext();)
        expected += match.next().captured(1);
    EXPECT_GT(expected.count(QLatin1Char('\n')), 20);
    EXPECT_EQ(run(QStringLiteral("LC_ALL=C.UTF-8 guideExamples"), QDir::tempPath()).toStdString(),
              expected.toStdString());
}

TEST(ConsoleExamples, TheCheckSeesADifference)
{
    EXPECT_TRUE(fits(QStringLiteral("a.b 12\n"), QStringLiteral("a.b 12")));
    EXPECT_FALSE(fits(QStringLiteral("axb 12\n"), QStringLiteral("a.b 12")));
    EXPECT_TRUE(fits(QStringLiteral("from /tmp/x to"), QStringLiteral("from ... to")));
    EXPECT_FALSE(fits(QStringLiteral("from /tmp/x"), QStringLiteral("from ... to")));

    QVector<Example> const examples =
        examplesIn(QStringLiteral("text\n```console\n$ echo a\na\n$ echo b\nb\n```\n"));
    ASSERT_EQ(examples.size(), 2);
    EXPECT_EQ(examples.at(1).command, QStringLiteral("echo b"));
    EXPECT_EQ(examples.at(1).expected.trimmed(), QStringLiteral("b"));
}

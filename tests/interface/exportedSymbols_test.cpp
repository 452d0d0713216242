#include "support/program.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

using kestrova::test::runProgram;

namespace {

/// A name with the types of Qt as Qt 5 calls them, so that one list is right for both.
QString withNamesOfQt5(QString name)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    name.replace(QLatin1String("QList<QString>"), QLatin1String("QStringList"));
    name.replace(QLatin1String("std::pair<"), QLatin1String("QPair<"));
#endif
    return name;
}

/// The names that the library exports, readable and sorted. What the C++ library brings along is left out.
QStringList exportedSymbols()
{
    static QRegularExpression const line(
        QStringLiteral("^[0-9a-f]+ [A-Za-z] ((?:(?:vtable|typeinfo|typeinfo name) for )?kestrova::.*)$"),
        QRegularExpression::MultilineOption);
    QString const listing = runProgram(QStringLiteral(KESTROVA_NM),
                                       {QStringLiteral("--dynamic"), QStringLiteral("--defined-only"),
                                        QStringLiteral("--demangle"), QStringLiteral(KESTROVA_LIBRARY)})
                                .output;
    QStringList names;
    for (auto match = line.globalMatch(listing); match.hasNext();)
        names.append(withNamesOfQt5(match.next().captured(1)));
    names.sort();
    names.removeDuplicates();
    return names;
}

QStringList expectedSymbols()
{
    QFile file(QStringLiteral(KESTROVA_EXPECTED_SYMBOLS));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << KESTROVA_EXPECTED_SYMBOLS;
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

std::string without(QStringList const & from, QStringList const & names)
{
    QString text;
    for (QString const & name : from) {
        if (!names.contains(name))
            text += name + QLatin1Char('\n');
    }
    return text.toStdString();
}

} // namespace

TEST(ExportedSymbols, AreThoseOfTheCheckedInList)
{
    QStringList const exported = exportedSymbols();
    QStringList const expected = expectedSymbols();
    EXPECT_GT(exported.size(), 500);
    EXPECT_EQ(without(expected, exported), "") << "no longer exported: programs that use them break";
    EXPECT_EQ(without(exported, expected), "")
        << "newly exported; if that is meant, add these lines to tests/golden/exportedSymbols.txt";
}

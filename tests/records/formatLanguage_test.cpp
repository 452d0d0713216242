#include "printedParameter.h"

#include "records/formatSpec.h"
#include "support/processLocale.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <functional>
#include <map>
#include <string>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::print;
using kestrova::test::Printed;
using kestrova::test::ProcessLocale;

// Runs the examples of docs/format-language.md: all tables whose first row names one of the kinds below.

namespace {

QStringList cellsOf(QString const & line)
{
    QStringList cells = line.mid(1, line.lastIndexOf(QLatin1Char('|')) - 1).split(QLatin1Char('|'));
    for (QString & cell : cells)
        cell = cell.trimmed();
    return cells;
}

/// What stands between backticks, with \xNN turned into the character of that number.
QString code(QString const & cell)
{
    QString text = cell;
    EXPECT_TRUE(text.startsWith(QLatin1Char('`')) && text.endsWith(QLatin1Char('`'))) << cell.toStdString();
    text = text.mid(1, text.size() - 2);
    static QRegularExpression const escape(QStringLiteral("\\\\x([0-9A-F]{2})"));
    for (auto match = escape.match(text); match.hasMatch(); match = escape.match(text))
        text.replace(match.capturedStart(), 4, QChar(match.captured(1).toUShort(nullptr, 16)));
    return text;
}

/// What stands between backticks and quotes.
QString quoted(QString const & cell)
{
    QString const text = code(cell);
    EXPECT_TRUE(text.startsWith(QLatin1Char('"')) && text.endsWith(QLatin1Char('"'))) << cell.toStdString();
    return text.mid(1, text.size() - 2);
}

bool isFailure(QString const & cell)
{
    return cell.startsWith(QLatin1Char('-'));
}

void runPrinting(QStringList const & cells, bool withUnit)
{
    QByteArray const bytes = QByteArray::fromHex(code(cells[1]).toLatin1());
    void const * const data = code(cells[1]) == QLatin1String("none") ? nullptr : bytes.constData();
    int const length = data == nullptr ? 256 : static_cast<int>(bytes.size());
    Printed const printed = print(code(cells[0]), data, length, withUnit);
    if (isFailure(cells[2]))
        EXPECT_EQ(printed.result, cells[2].toInt());
    else
        EXPECT_EQ(printed.text, quoted(cells[2]).toStdString());
}

/// A value as the page writes it: its type and the value, a text in quotes.
std::string described(QVariant const & value)
{
    if (!value.isValid())
        return "untouched";
    if (value.userType() == QMetaType::QString)
        return "text \"" + value.toString().toStdString() + '"';
    std::string const type = value.userType() == QMetaType::ULongLong ? "ulonglong" : value.typeName();
    std::string const number = value.userType() == QMetaType::Float
                                   ? QString::number(static_cast<double>(value.toFloat())).toStdString()
                                   : value.toString().toStdString();
    return type + ' ' + number;
}

void runParsing(QStringList const & cells)
{
    QVariant value;
    int const result = CObjectDef::strToPara(quoted(cells[0]), code(cells[1]), value);
    if (isFailure(cells[2])) {
        EXPECT_EQ(result, cells[2].toInt());
    } else {
        EXPECT_EQ(result, 0);
        EXPECT_EQ(described(value), code(cells[2]).toStdString());
    }
}

void runSizes(QStringList const & cells)
{
    FormatSpec spec;
    parseFormatSpec(code(cells[0]).toLatin1().constData(), spec);
    EXPECT_EQ(spec.size, cells[1].toInt());
    EXPECT_EQ(spec.width, cells[2].toInt());
}

using Example = std::function<void(QStringList const &)>;

std::map<QString, Example> const kinds = {
    {QStringLiteral("Format|Bytes|Text"), [](QStringList const & cells) { runPrinting(cells, false); }},
    {QStringLiteral("Format|Bytes|Text with unit"),
     [](QStringList const & cells) { runPrinting(cells, true); }},
    {QStringLiteral("Format|Size|Width"), runSizes},
    {QStringLiteral("Text|Format|Value"), runParsing},
    {QStringLiteral("Format|Decimals"),
     [](QStringList const & cells) { EXPECT_EQ(CObjectDef::decimals(code(cells[0])), cells[1].toInt()); }},
    {QStringLiteral("Format|Unit"),
     [](QStringList const & cells) {
         EXPECT_EQ(CObjectDef::unit(code(cells[0])).toStdString(), quoted(cells[1]).toStdString());
     }},
};

} // namespace

TEST(FormatLanguage, IsAsTheExamplesOfItsPageSay)
{
    ProcessLocale const plain("C");
    QFile page(QStringLiteral(FORMAT_LANGUAGE_DOCUMENT));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));

    std::map<QString, int> examplesRun;
    QString kind; // of the table that is being read; empty outside of tables
    int lineNumber = 0;
    for (QString const & line : QString::fromUtf8(page.readAll()).split(QLatin1Char('\n'))) {
        ++lineNumber;
        SCOPED_TRACE("format-language.md:" + std::to_string(lineNumber));
        if (!line.startsWith(QLatin1Char('|'))) {
            kind.clear();
        } else if (kind.isEmpty()) {
            kind = cellsOf(line).join(QLatin1Char('|'));
        } else if (!line.startsWith(QLatin1String("|-")) && kinds.count(kind) != 0) {
            kinds.at(kind)(cellsOf(line));
            ++examplesRun[kind];
        }
    }
    for (auto const & [name, example] : kinds)
        EXPECT_GE(examplesRun[name], 4) << name.toStdString();
}

#include "check/baseline.h"

#include "common/failure.h"

#include <QStringList>

using namespace kestrova::tools;

namespace kestrova::authoring {

namespace {

constexpr int fieldCount = 6;

/// A field holds no tab and no line break, whatever the database held.
QString escaped(QString field)
{
    field.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    field.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    field.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return field.replace(QLatin1Char('\r'), QLatin1String("\\r"));
}

QString lineOf(Finding const & finding)
{
    Place const & place = finding.place;
    QStringList const fields{QLatin1String(finding.rule->name),
                             escaped(place.file),
                             place.table,
                             place.column,
                             escaped(place.subject),
                             escaped(finding.value)};
    return fields.join(QLatin1Char('\t'));
}

} // namespace

Baseline::Baseline(QByteArray const & text, QString const & fileName)
{
    int number = 0;
    for (QByteArray const & bytes : text.split('\n')) {
        ++number;
        QString const line = QString::fromUtf8(bytes);
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        QStringList const fields = line.split(QLatin1Char('\t'));
        if (fields.size() != fieldCount || findRule(fields.first().toUtf8().constData()) == nullptr)
            throw Failure(ExitUsage, QStringLiteral("%1, line %2 is no accepted finding; write the file with "
                                                    "--write-baseline")
                                         .arg(fileName, QString::number(number)));
        lines.insert(line);
    }
}

bool Baseline::accepts(Finding const & finding) const
{
    return lines.contains(lineOf(finding));
}

QStringList Baseline::outdated(QVector<Finding> const & findings) const
{
    QSet<QString> rest = lines;
    for (Finding const & finding : findings)
        rest.remove(lineOf(finding));
    QStringList sorted(rest.begin(), rest.end());
    sorted.sort();
    return sorted;
}

QByteArray Baseline::textOf(QVector<Finding> const & findings)
{
    QByteArray text = "# Findings that are accepted. Made by `devicelore-db check --write-baseline`.\n"
                      "# rule, file, table, column, subject, value\n";
    QSet<QString> written;
    for (Finding const & finding : findings) {
        QString const line = lineOf(finding);
        if (written.contains(line))
            continue;
        written.insert(line);
        text += line.toUtf8() + '\n';
    }
    return text;
}

} // namespace kestrova::authoring

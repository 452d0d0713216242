#include "common/answer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>

#include <algorithm>

namespace kestrova::tools {

namespace {

QString const columnGap = QStringLiteral("  ");

QVector<int> columnWidths(QStringList const & heading, QVector<QStringList> const & rows)
{
    QVector<int> widths;
    for (int column = 0; column < heading.size(); ++column) {
        auto width = heading.at(column).size();
        for (QStringList const & row : rows)
            width = std::max(width, row.at(column).size());
        widths.append(static_cast<int>(width));
    }
    return widths;
}

QString rowText(QStringList const & row, QVector<int> const & widths)
{
    QStringList cells;
    for (int column = 0; column < row.size(); ++column)
        cells.append(row.at(column).leftJustified(widths.at(column)));
    QString line = cells.join(columnGap);
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line + QLatin1Char('\n');
}

} // namespace

QString tableText(QStringList const & heading, QVector<QStringList> const & rows)
{
    QVector<int> const widths = columnWidths(heading, rows);
    QString text = rowText(heading, widths);
    for (QStringList const & row : rows)
        text += rowText(row, widths);
    return text;
}

QString fieldsText(QVector<QPair<QString, QString>> const & fields)
{
    int width = 0;
    for (auto const & field : fields)
        width = std::max(width, static_cast<int>(field.first.size()));
    QString text;
    for (auto const & field : fields) {
        if (!field.second.isEmpty())
            text += field.first.leftJustified(width) + columnGap + field.second + QLatin1Char('\n');
    }
    return text;
}

QString jsonText(QJsonValue const & value)
{
    QJsonDocument const document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    return QString::fromUtf8(document.toJson());
}

} // namespace kestrova::tools

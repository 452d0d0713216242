#include "check/finding.h"

#include "core/qt5Conversions.h"

#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace kestrova::authoring {

namespace {

constexpr int shownCharacters = 60;

QString shortened(QString const & text)
{
    return text.size() <= shownCharacters ? text : text.left(shownCharacters) + QStringLiteral("...");
}

/// Control characters would spoil a terminal, or a line of a baseline.
QString printable(QString text)
{
    for (QChar & character : text) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QLatin1Char('.');
    }
    return text;
}

} // namespace

void Findings::add(char const * rule, Place const & place, QString const & value, QString const & message)
{
    Rule const * const found = findRule(rule);
    if (found == nullptr)
        throw std::logic_error(std::string("there is no rule ") + rule);
    all.append({found, place, value, message});
}

QVector<Finding> Findings::sorted() const
{
    QVector<Finding> findings = all;
    auto const rank = [this](Finding const & finding) {
        Place const & place = finding.place;
        return std::make_tuple(files.indexOf(place.file), place.table, place.row, place.column,
                               QLatin1String(finding.rule->name));
    };
    std::stable_sort(findings.begin(), findings.end(),
                     [&](Finding const & left, Finding const & right) { return rank(left) < rank(right); });
    return findings;
}

QString shownNumber(double number)
{
    return QString::number(number, 'g', 12);
}

QString shownValue(QVariant const & value)
{
    if (qt5::isNull(value))
        return QStringLiteral("NULL");
    switch (value.userType()) {
    case QMetaType::QByteArray:
        return QStringLiteral("x'%1'").arg(shortened(QString::fromLatin1(value.toByteArray().toHex())));
    case QMetaType::QString:
        return QStringLiteral("\"%1\"").arg(shortened(printable(value.toString())));
    default:
        return qt5::toText(value);
    }
}

} // namespace kestrova::authoring

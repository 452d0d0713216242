#include "rawValue.h"

#include "optionValue.h"

#include <QByteArray>

namespace kestrova::inspector {

namespace {

constexpr int longest = 40;

QString cut(QString const & text)
{
    return text.size() <= longest ? text : text.left(longest) + QStringLiteral("...");
}

} // namespace

QString printable(QString const & text)
{
    QString shown;
    for (QChar const character : cut(text)) {
        if (character.category() == QChar::Other_Control)
            shown += QStringLiteral("\\x%1").arg(int(character.unicode()), 2, 16, QLatin1Char('0'));
        else
            shown += character;
    }
    return shown;
}

QString quoted(QString const & text)
{
    return QLatin1Char('\'') + printable(text) + QLatin1Char('\'');
}

QString rawText(QVariant const & value)
{
    if (value.userType() == QMetaType::QByteArray) // an empty blob is null to Qt
        return QStringLiteral("x'%1'").arg(cut(QString::fromLatin1(value.toByteArray().toHex())));
    if (value.isNull())
        return QStringLiteral("NULL");
    if (value.userType() == QMetaType::Double)
        return numberText(value.toDouble());
    return value.userType() == QMetaType::QString ? quoted(value.toString()) : value.toString();
}

QJsonValue rawJson(QVariant const & value)
{
    if (value.userType() == QMetaType::QByteArray)
        return QString::fromLatin1(value.toByteArray().toHex());
    return value.isNull() ? QJsonValue() : QJsonValue::fromVariant(value);
}

} // namespace kestrova::inspector

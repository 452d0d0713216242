#include "command.h"
#include "core/qt5Conversions.h"
#include "deviceArgument.h"
#include "objectArgument.h"
#include "objectText.h"
#include "optionValue.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

QString controlName(int control)
{
    switch (control) {
    case ControlChoice:
        return QStringLiteral("choice");
    case ControlValue:
        return QStringLiteral("value");
    case ControlToggle:
        return QStringLiteral("toggle");
    case ControlText:
        return QStringLiteral("text");
    case ControlFixed:
        return QStringLiteral("fixed");
    case ControlIndicator:
        return QStringLiteral("indicator");
    case ControlReadout:
        return QStringLiteral("readout");
    case ControlSpecialEdit:
        return QStringLiteral("special edit");
    default:
        return QStringLiteral("none");
    }
}

QString verdictName(CDevicelore::ValidationState state)
{
    switch (state) {
    case CDevicelore::Valid:
        return QStringLiteral("valid");
    case CDevicelore::AdjustedToMax:
        return QStringLiteral("adjusted to the maximum");
    case CDevicelore::AdjustedToMin:
        return QStringLiteral("adjusted to the minimum");
    case CDevicelore::RoundedUp:
        return QStringLiteral("rounded up");
    case CDevicelore::RoundedDown:
        return QStringLiteral("rounded down");
    case CDevicelore::Truncated:
        return QStringLiteral("cut");
    case CDevicelore::Invalid:
        break;
    }
    return QStringLiteral("invalid");
}

/// The limit that decided, in the object's own numbers.
QString limitText(CDevicelore::ValidationState state, CObjectDef const & object)
{
    switch (state) {
    case CDevicelore::AdjustedToMax:
        return QStringLiteral("maximum %1").arg(numberText(object.maxValue()));
    case CDevicelore::AdjustedToMin:
        return QStringLiteral("minimum %1").arg(numberText(object.minValue()));
    case CDevicelore::RoundedUp:
    case CDevicelore::RoundedDown:
        return QStringLiteral("step %1").arg(numberText(object.step()));
    case CDevicelore::Truncated:
        return QStringLiteral("size %1").arg(object.size());
    default:
        return QStringLiteral("none");
    }
}

QString whyNotEditable(CObjectDef const & object, unsigned char level)
{
    if (!object.isWriteable())
        return QStringLiteral("the object cannot be written");
    if (object.access() % 10 > level)
        return QStringLiteral("it needs access level %1").arg(object.access() % 10);
    return QStringLiteral("the speaker has no such filter");
}

QString whyNotSupported(QString const & name)
{
    if (name.startsWith(QLatin1String("Config_Filter")))
        return QStringLiteral("the speaker has no such filter");
    if (name.startsWith(QLatin1String("Wavefold_")))
        return QStringLiteral("the speaker is no Wavefold setup");
    return QStringLiteral("the speaker has no Cablefit");
}

QString withReason(bool is, QString const & whyNot)
{
    return is ? QStringLiteral("yes") : QStringLiteral("no: ") + whyNot;
}

/// The texts of the object's values, the lowest value first.
QList<QPair<int, QString>> valueTexts(Inspector & inspector, CDeviceGuid const & guid,
                                      CObjectDef const & object)
{
    QList<QPair<int, QString>> texts;
    if (object.textOffset() > 1) // 1 stands for "none", as 0 does
        inspector.facade().listValueStrings(guid, static_cast<int>(object.textOffset()), texts);
    std::sort(texts.begin(), texts.end());
    return texts;
}

QString joined(QList<QPair<int, QString>> const & texts)
{
    QStringList list;
    for (QPair<int, QString> const & text : texts)
        list.append(QStringLiteral("%1 %2").arg(text.first).arg(text.second));
    return list.isEmpty() ? QStringLiteral("none") : list.join(QStringLiteral("; "));
}

/// What the user wrote, as a number if it is one.
QVariant realValue(CObjectDef const & object, QString const & text)
{
    bool isNumber = false;
    double const number = text.toDouble(&isNumber);
    return isNumber && object.objectType() != CObjectDef::ObjectTypeString ? QVariant(number)
                                                                           : QVariant(text);
}

QVariant rawValue(CObjectDef const & object, QString const & text)
{
    if (object.objectType() == CObjectDef::ObjectTypeString)
        return {text};
    bool isNumber = false;
    int const number = text.toInt(&isNumber, 0);
    if (isNumber)
        return {number};
    uint const unsignedNumber = text.toUInt(&isNumber, 0);
    if (!isNumber)
        throw Failure(
            ExitUsage,
            QStringLiteral("a raw value of this object is an integer of 32 bits, not '%1'").arg(text));
    return {unsignedNumber};
}

Answer conversionAnswer(CObjectDef const & object, QString const & from, QVariant const & given,
                        QString const & to, QVariant const & result, bool isConverted)
{
    Answer answer;
    answer.json = QJsonObject{{QStringLiteral("object"), object.name()},
                              {from, QJsonValue::fromVariant(given)},
                              {to, isConverted ? QJsonValue::fromVariant(result) : QJsonValue()},
                              {QStringLiteral("unit"), object.unit()}};
    if (!isConverted) {
        answer.exitCode = ExitNotFound;
        answer.complaint = QStringLiteral("the format \"%1\" of %2 cannot convert '%3'")
                               .arg(object.format(), object.name(), qt5::toText(given));
        return answer;
    }
    QString const real = to == QLatin1String("real") ? valueText(result) : valueText(given);
    QString const raw = to == QLatin1String("real") ? valueText(given) : valueText(result);
    answer.text = fieldsText({{QStringLiteral("raw"), raw}, {QStringLiteral("real"), real + object.unit()}});
    return answer;
}

} // namespace

Answer describeAnswer(Inspector & inspector, Arguments const & arguments)
{
    std::unique_ptr<CDeviceChannelInfo> const channel = channelOption(arguments);
    CDeviceGuid const guid = descriptionOfArgument(inspector.cache(), arguments.words.first());
    QString const name = arguments.words.at(1);
    CObjectDef const object = objectOfArgument(inspector, guid, name, channel.get());
    CDevicelore const & library = inspector.facade();
    CDeviceProperty property;
    property.setPropertyName(object.name(), QString());
    property.setDeviceChannel(-1);
    if (!library.devicePropertyInfo(guid, property, channel.get()))
        throw Failure(
            ExitNotFound,
            QStringLiteral("there is no property '%1' of %2%3; the speaker may be none that is known")
                .arg(name, guid.toString(), channelText(channel.get())));

    bool const isEditable = property.flags().testFlag(CDeviceProperty::PropertyEditable);
    bool const isSupported = library.IsObjectSupported(guid, object.name(), channel.get());
    QString const editable = withReason(isEditable, whyNotEditable(object, library.deviceAccessLevel()));
    QString const supported = withReason(isSupported, whyNotSupported(object.name()));
    QList<QPair<int, QString>> const texts = valueTexts(inspector, guid, object);
    Answer answer;
    answer.text = fieldsText(
        {{QStringLiteral("property"), property.uniquePropertyName()},
         {QStringLiteral("shown as"), property.displayName()},
         {QStringLiteral("with"), property.subName()},
         {QStringLiteral("control"), controlName(property.simpleControlType())},
         {QStringLiteral("type"), typeName(object)},
         {QStringLiteral("range"),
          QStringLiteral("%1 to %2").arg(valueText(property.minValue()), valueText(property.maxValue()))},
         {QStringLiteral("step"), valueText(property.step())},
         {QStringLiteral("decimals"), QString::number(property.decimals())},
         {QStringLiteral("unit"), QLatin1Char('"') + property.unit() + QLatin1Char('"')},
         {QStringLiteral("texts"), joined(texts)},
         {QStringLiteral("editable"), editable},
         {QStringLiteral("supported"), supported}});
    QJsonObject textsJson;
    for (QPair<int, QString> const & text : texts)
        textsJson.insert(QString::number(text.first), text.second);
    answer.json = QJsonObject{{QStringLiteral("guid"), guid.toString()},
                              {QStringLiteral("property"), property.uniquePropertyName()},
                              {QStringLiteral("displayName"), property.displayName()},
                              {QStringLiteral("subName"), property.subName()},
                              {QStringLiteral("control"), controlName(property.simpleControlType())},
                              {QStringLiteral("type"), typeName(object)},
                              {QStringLiteral("minimum"), property.minValue().toDouble()},
                              {QStringLiteral("maximum"), property.maxValue().toDouble()},
                              {QStringLiteral("step"), property.step().toDouble()},
                              {QStringLiteral("decimals"), property.decimals()},
                              {QStringLiteral("unit"), property.unit()},
                              {QStringLiteral("channels"), property.deviceChannel()},
                              {QStringLiteral("texts"), textsJson},
                              {QStringLiteral("editable"), isEditable},
                              {QStringLiteral("supported"), isSupported}};
    return answer;
}

Answer convertAnswer(Inspector & inspector, Arguments const & arguments)
{
    QString const toReal = QStringLiteral("to-real");
    QString const toDevice = QStringLiteral("to-device");
    if (arguments.options.contains(toReal) == arguments.options.contains(toDevice))
        throw Failure(ExitUsage, QStringLiteral("say either --to-real RAW or --to-device REAL"));
    CDeviceGuid const guid = descriptionOfArgument(inspector.cache(), arguments.words.first());
    CObjectDef const object = objectOfArgument(inspector, guid, arguments.words.at(1), nullptr);
    if (arguments.options.contains(toReal)) {
        QVariant const raw = rawValue(object, arguments.options.value(toReal));
        QVariant real = raw;
        bool const isConverted = inspector.facade().deviceToReal(object, real);
        return conversionAnswer(object, QStringLiteral("raw"), raw, QStringLiteral("real"), real,
                                isConverted);
    }
    QVariant const real = realValue(object, arguments.options.value(toDevice));
    QVariant raw = real;
    bool const isConverted = inspector.facade().realToDevice(object, raw);
    return conversionAnswer(object, QStringLiteral("real"), real, QStringLiteral("raw"), raw, isConverted);
}

Answer checkAnswer(Inspector & inspector, Arguments const & arguments)
{
    std::unique_ptr<CDeviceChannelInfo> const channel = channelOption(arguments);
    CDeviceGuid const guid = descriptionOfArgument(inspector.cache(), arguments.words.first());
    CObjectDef const object = objectOfArgument(inspector, guid, arguments.words.at(1), channel.get());
    QVariant const given = realValue(object, arguments.words.at(2));
    QVariant value = given;
    CDevicelore::ValidationState const state =
        inspector.facade().AdjustDeviceProperty(guid, object.name(), value, channel.get());
    Answer answer;
    answer.text = fieldsText({{QStringLiteral("verdict"), verdictName(state)},
                              {QStringLiteral("value"), valueText(value)},
                              {QStringLiteral("limit"), limitText(state, object)}});
    answer.json = QJsonObject{{QStringLiteral("object"), object.name()},
                              {QStringLiteral("given"), QJsonValue::fromVariant(given)},
                              {QStringLiteral("verdict"), verdictName(state)},
                              {QStringLiteral("value"), QJsonValue::fromVariant(value)},
                              {QStringLiteral("limit"), limitText(state, object)}};
    return answer;
}

} // namespace kestrova::inspector

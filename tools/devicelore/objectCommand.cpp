#include "command.h"
#include "deviceArgument.h"
#include "objectArgument.h"
#include "objectText.h"
#include "optionValue.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPair>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

QString classText(CObjectDef const & object)
{
    QStringList fields;
    for (int i = 0; i < object.ocaClassIdSize() && i < 16; ++i)
        fields.append(QString::number(object.ocaClassId()[i]));
    QString const number = QString::number(object.classId());
    return fields.isEmpty() ? number : QStringLiteral("%1 (%2)").arg(number, fields.join(QLatin1Char('.')));
}

/// What of the speaker changes the object's limits; empty for an object that none changes.
QString limitedBy(CObjectDef const & object)
{
    if (object.name() == QLatin1String("ChStatus_MsDelay"))
        return QStringLiteral("the speaker is a Wavefold setup");
    if (object.name() == QLatin1String("Config_CablefitSpeakerCount"))
        return QStringLiteral("the speaker's Cablefit count");
    if (!object.displaySubName().isEmpty())
        return QStringLiteral("the speaker's filter '%1'").arg(object.displaySubName());
    return {};
}

bool sameLimits(CObjectDef const & left, CObjectDef const & right)
{
    return left.minValue() == right.minValue() && left.maxValue() == right.maxValue() &&
           left.step() == right.step() && left.objectType() == right.objectType();
}

QVector<QPair<QString, QString>> fieldsOf(CObjectDef const & object)
{
    return {{QStringLiteral("object"), object.name()},
            {QStringLiteral("number"), numberWithPartsText(object.FullObjectNumber())},
            {QStringLiteral("display name"), object.displayName()},
            {QStringLiteral("display sub name"), object.displaySubName()},
            {QStringLiteral("type"), typeName(object)},
            {QStringLiteral("range"), rangeText(object)},
            {QStringLiteral("default"), valueText(object.defaultValue())},
            {QStringLiteral("format"), QLatin1Char('"') + object.format() + QLatin1Char('"')},
            {QStringLiteral("unit"), QLatin1Char('"') + object.unit() + QLatin1Char('"')},
            {QStringLiteral("size"),
             object.size() == 1 ? QStringLiteral("1 byte") : QStringLiteral("%1 bytes").arg(object.size())},
            {QStringLiteral("rights"), rightsText(object)},
            {QStringLiteral("flags"), hexadecimal(object.flags(), 4)},
            {QStringLiteral("access"), QString::number(object.access())},
            {QStringLiteral("channels"), QString::number(object.channelCount())},
            {QStringLiteral("records"), QString::number(object.recordCount())},
            {QStringLiteral("text offset"), QString::number(object.textOffset())},
            {QStringLiteral("class"), classText(object)},
            {QStringLiteral("ono type"), QString::number(object.GetOnoType())},
            {QStringLiteral("wait time"), QString::number(object.waitTime())},
            {QStringLiteral("wait states"), QString::number(object.waitStates())},
            {QStringLiteral("hash"), QString::number(object.propertyHash())},
            {QStringLiteral("comment"), object.comment()}};
}

QJsonObject jsonOf(CObjectDef const & object)
{
    QJsonArray ocaClass;
    for (int i = 0; i < object.ocaClassIdSize() && i < 16; ++i)
        ocaClass.append(object.ocaClassId()[i]);
    return {{QStringLiteral("name"), object.name()},
            {QStringLiteral("number"), object.FullObjectNumber()},
            {QStringLiteral("box"), object.BoxNumber()},
            {QStringLiteral("object"), object.ObjectNumber()},
            {QStringLiteral("displayName"), object.displayName()},
            {QStringLiteral("displaySubName"), object.displaySubName()},
            {QStringLiteral("type"), typeName(object)},
            {QStringLiteral("minimum"), object.minValue()},
            {QStringLiteral("maximum"), object.maxValue()},
            {QStringLiteral("step"), object.step()},
            {QStringLiteral("default"), QJsonValue::fromVariant(object.defaultValue())},
            {QStringLiteral("format"), object.format()},
            {QStringLiteral("unit"), object.unit()},
            {QStringLiteral("size"), object.size()},
            {QStringLiteral("flags"), object.flags()},
            {QStringLiteral("access"), object.access()},
            {QStringLiteral("channels"), object.channelCount()},
            {QStringLiteral("records"), object.recordCount()},
            {QStringLiteral("textOffset"), double(object.textOffset())},
            {QStringLiteral("classId"), object.classId()},
            {QStringLiteral("ocaClass"), ocaClass},
            {QStringLiteral("onoType"), object.GetOnoType()},
            {QStringLiteral("waitTime"), object.waitTime()},
            {QStringLiteral("waitStates"), object.waitStates()},
            {QStringLiteral("hash"), double(object.propertyHash())},
            {QStringLiteral("comment"), object.comment()}};
}

/// The device's objects that the access level shows, by their numbers.
QList<CObjectDef> objectsLike(Inspector & inspector, CDeviceGuid const & guid, QString pattern)
{
    pattern.replace(QLatin1Char('\''), QLatin1String("''"));
    CDevicelore const & library = inspector.facade();
    QStringList const names = library.devicePropertyFilterByExpression(
        QStringLiteral("SELECT Name FROM Objects, guidsandobjects WHERE objectid = id AND guid = '%1' AND "
                       "Name LIKE '%2'")
            .arg(guid.toString(), pattern));
    QList<CObjectDef> objects;
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    for (QString const & name : names) {
        if (library.GetObjectDef(guid, name, object, nullptr) == TharnNoError)
            objects.append(object);
    }
    std::stable_sort(objects.begin(), objects.end(), [](CObjectDef const & left, CObjectDef const & right) {
        return left.FullObjectNumber() < right.FullObjectNumber();
    });
    return objects;
}

QString accessText(CObjectDef const & object)
{
    return (object.isReadable() ? QStringLiteral("r") : QStringLiteral("-")) +
           (object.isWriteable() ? QStringLiteral("w") : QStringLiteral("-")) +
           QString::number(object.access());
}

} // namespace

Answer objectAnswer(Inspector & inspector, Arguments const & arguments)
{
    std::unique_ptr<CDeviceChannelInfo> const channel = channelOption(arguments);
    CDeviceGuid const guid = descriptionOfArgument(inspector.cache(), arguments.words.first());
    CObjectDef const object = objectOfArgument(inspector, guid, arguments.words.at(1), channel.get());
    CObjectDef const plain = objectOfArgument(inspector, guid, arguments.words.at(1), nullptr);

    QVector<QPair<QString, QString>> fields = fieldsOf(object);
    QJsonObject json = jsonOf(object);
    json.insert(QStringLiteral("guid"), guid.toString());
    if (!sameLimits(object, plain)) {
        int const behindRange = 6;
        fields.insert(behindRange, {QStringLiteral("without speaker"),
                                    QStringLiteral("%1, %2").arg(typeName(plain), rangeText(plain))});
        fields.insert(behindRange + 1, {QStringLiteral("changed by"), limitedBy(object)});
        json.insert(QStringLiteral("withoutSpeaker"),
                    QJsonObject{{QStringLiteral("type"), typeName(plain)},
                                {QStringLiteral("minimum"), plain.minValue()},
                                {QStringLiteral("maximum"), plain.maxValue()},
                                {QStringLiteral("step"), plain.step()}});
        json.insert(QStringLiteral("changedBy"), limitedBy(object));
    }
    Answer answer;
    answer.text = fieldsText(fields);
    answer.json = json;
    return answer;
}

Answer objectsAnswer(Inspector & inspector, Arguments const & arguments)
{
    CDeviceGuid const guid = descriptionOfArgument(inspector.cache(), arguments.words.first());
    QString const pattern = arguments.options.value(QStringLiteral("like"), QStringLiteral("%"));
    QVector<QStringList> rows;
    QJsonArray objects;
    for (CObjectDef const & object : objectsLike(inspector, guid, pattern)) {
        rows.append({hexadecimal(object.FullObjectNumber(), 4), object.name(), typeName(object),
                     rangeText(object), object.unit().trimmed(), valueText(object.defaultValue()),
                     accessText(object)});
        objects.append(jsonOf(object));
    }
    Answer answer;
    if (!rows.isEmpty())
        answer.text = tableText({QStringLiteral("NUMBER"), QStringLiteral("NAME"), QStringLiteral("TYPE"),
                                 QStringLiteral("RANGE"), QStringLiteral("UNIT"), QStringLiteral("DEFAULT"),
                                 QStringLiteral("ACCESS")},
                                rows);
    answer.json = objects;
    if (rows.isEmpty()) {
        answer.exitCode = ExitNotFound;
        answer.complaint = QStringLiteral("%1 has no object like '%2' at access level %3")
                               .arg(guid.toString(), pattern)
                               .arg(inspector.facade().deviceAccessLevel());
    }
    return answer;
}

} // namespace kestrova::inspector

#include "command.h"
#include "deviceArgument.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

int readInt(QString const & text, char const * what)
{
    bool isNumber = false;
    int const number = text.toInt(&isNumber, 0);
    if (!isNumber)
        throw Failure(ExitUsage, QStringLiteral("%1 is a number, not '%2'").arg(QLatin1String(what), text));
    return number;
}

Answer listAnswer(QStringList const & names, QString const & complaintIfEmpty)
{
    Answer answer;
    for (QString const & name : names)
        answer.text += name + QLatin1Char('\n');
    answer.json = QJsonArray::fromStringList(names);
    if (names.isEmpty()) {
        answer.exitCode = ExitNotFound;
        answer.complaint = complaintIfEmpty;
    }
    return answer;
}

} // namespace

Answer textAnswer(Inspector & inspector, Arguments const & arguments)
{
    CDeviceGuid const guid = descriptionOfArgument(inspector.cache(), arguments.words.first());
    int const offset = readInt(arguments.words.at(1), "a text offset");
    if (arguments.options.contains(QStringLiteral("language")))
        inspector.cache().setTextLanguage(arguments.options.value(QStringLiteral("language")));

    QList<QPair<int, QString>> texts;
    inspector.facade().listValueStrings(guid, offset, texts);
    std::stable_sort(texts.begin(), texts.end(),
                     [](auto const & left, auto const & right) { return left.first < right.first; });
    if (arguments.words.size() > 2) {
        int const value = readInt(arguments.words.at(2), "a value");
        QString const text = inspector.facade().objectValueString(guid, offset, value);
        texts.clear();
        if (!text.isNull())
            texts.append(qMakePair(value, text));
    }

    QVector<QStringList> rows;
    QJsonArray json;
    for (QPair<int, QString> const & text : texts) {
        rows.append({QString::number(text.first), text.second});
        json.append(
            QJsonObject{{QStringLiteral("value"), text.first}, {QStringLiteral("text"), text.second}});
    }
    Answer answer;
    if (!rows.isEmpty())
        answer.text = tableText({QStringLiteral("VALUE"), QStringLiteral("TEXT")}, rows);
    answer.json = json;
    if (texts.isEmpty()) {
        answer.exitCode = ExitNotFound;
        answer.complaint = QStringLiteral("%1 has no such text at offset %2 in the language %3")
                               .arg(guid.toString())
                               .arg(offset)
                               .arg(inspector.cache().textLanguage());
    }
    return answer;
}

Answer groupsAnswer(Inspector & inspector, Arguments const & arguments)
{
    QStringList names = inspector.facade().enumDevicePropertyFilter();
    names.sort();
    QString const level = QString::number(inspector.facade().deviceAccessLevel());
    if (arguments.words.isEmpty())
        return listAnswer(names, QStringLiteral("there is no property group at access level %1").arg(level));
    QString const name = arguments.words.first();
    if (!names.contains(name))
        throw Failure(ExitNotFound,
                      QStringLiteral("there is no property group '%1' at access level %2; the groups are %3")
                          .arg(name, level, names.join(QStringLiteral(", "))));
    return listAnswer(inspector.facade().devicePropertyFilter(name),
                      QStringLiteral("the property group '%1' is empty").arg(name));
}

Answer queryAnswer(Inspector & inspector, Arguments const & arguments)
{
    return listAnswer(inspector.facade().devicePropertyFilterByExpression(arguments.words.first()),
                      QStringLiteral("no database gives a row; a statement that fails gives none either"));
}

Answer dspAnswer(Inspector & inspector, Arguments const & arguments)
{
    CDeviceGuid const guid = guidOfArgument(inspector.cache(), arguments.words.first());
    int const id = readInt(arguments.words.at(1), "a speaker");
    if (id < 0 || id > 65535)
        throw Failure(ExitUsage, QStringLiteral("a speaker is a number from 0 to 65535, not '%1'").arg(id));
    SpeakerDspData const data =
        inspector.facade().GetConfigSpeakerData(guid, static_cast<unsigned short>(id));
    if (data.GetDeviceGuid().isNull())
        throw Failure(
            ExitNotFound,
            QStringLiteral("there is no DSP data of %1 for the speaker %2").arg(guid.toString()).arg(id));

    QByteArray const blob = data.GetSpeakerDspData();
    QString const md5 = QString::fromLatin1(QCryptographicHash::hash(blob, QCryptographicHash::Md5).toHex());
    bool const isIntact = md5.compare(data.GetMd5(), Qt::CaseInsensitive) == 0;
    QString const outOption = QStringLiteral("out");
    if (arguments.options.contains(outOption)) {
        QFile file(arguments.options.value(outOption));
        if (!file.open(QIODevice::WriteOnly) || file.write(blob) != blob.size())
            throw Failure(ExitDatabase,
                          QStringLiteral("cannot write '%1': %2").arg(file.fileName(), file.errorString()));
    }
    Answer answer;
    answer.text = fieldsText(
        {{QStringLiteral("device type"), data.GetDeviceType()},
         {QStringLiteral("speaker"), data.GetSpeakerName()},
         {QStringLiteral("setup version"), data.GetSpeakerSetupVersion()},
         {QStringLiteral("data"), QStringLiteral("%1 bytes").arg(blob.size())},
         {QStringLiteral("MD5"),
          isIntact
              ? QStringLiteral("matches")
              : QStringLiteral("differs: the data has %1, the database says '%2'").arg(md5, data.GetMd5())},
         {QStringLiteral("valid"),
          data.IsValid() ? QStringLiteral("yes") : QStringLiteral("no: something is empty")}});
    answer.json = QJsonObject{{QStringLiteral("guid"), guid.toString()},
                              {QStringLiteral("speakerId"), id},
                              {QStringLiteral("deviceType"), data.GetDeviceType()},
                              {QStringLiteral("speaker"), data.GetSpeakerName()},
                              {QStringLiteral("setupVersion"), data.GetSpeakerSetupVersion()},
                              {QStringLiteral("size"), blob.size()},
                              {QStringLiteral("md5"), data.GetMd5()},
                              {QStringLiteral("md5OfData"), md5},
                              {QStringLiteral("intact"), isIntact},
                              {QStringLiteral("valid"), data.IsValid()}};
    if (!isIntact || !data.IsValid()) {
        answer.exitCode = ExitDatabase;
        answer.complaint = QStringLiteral("the DSP data of %1 for the speaker %2 is damaged or incomplete")
                               .arg(guid.toString())
                               .arg(id);
    }
    return answer;
}

Answer versionAnswer(Inspector & inspector, Arguments const &)
{
    int major = 0;
    int minor = 0;
    int bugfix = 0;
    libVersion(bugfix, minor, major);
    QString const version = QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(bugfix);
    QList<CDriverDatabaseInfo> databases;
    inspector.facade().databaseInfos(databases);
    Answer answer;
    answer.text = fieldsText({{QStringLiteral("library"), version},
                              {QStringLiteral("Qt"), QLatin1String(qVersion())},
                              {QStringLiteral("databases"), QString::number(databases.size())}});
    answer.json = QJsonObject{{QStringLiteral("library"), version},
                              {QStringLiteral("qt"), QLatin1String(qVersion())},
                              {QStringLiteral("databases"), databases.size()}};
    return answer;
}

} // namespace kestrova::inspector

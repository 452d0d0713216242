#include "command.h"
#include "inspector.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

constexpr int channels = 4;

/// "1+2 3 4": the channels, those that drive a speaker together joined.
QString groupsText(CDevicelore const & library, OutputMode mode)
{
    QString text = QStringLiteral("1");
    for (int channel = 2; channel <= channels; ++channel) {
        bool const startsGroup = library.firstChannel(mode, channel) == channel;
        text += QLatin1Char(startsGroup ? ' ' : '+') + QString::number(channel);
    }
    return text;
}

QJsonArray channelsJson(CDevicelore const & library, OutputMode mode)
{
    QJsonArray json;
    for (int channel = 1; channel <= channels; ++channel) {
        bool isFirst = false;
        bool const isTwoWay = CDevicelore::is2wayActiveChannel(channel, mode, channels, isFirst);
        json.append(QJsonObject{{QStringLiteral("channel"), channel},
                                {QStringLiteral("firstChannel"), library.firstChannel(mode, channel)},
                                {QStringLiteral("twoWay"), isTwoWay},
                                {QStringLiteral("firstOfTwo"), isFirst}});
    }
    return json;
}

} // namespace

Answer modesAnswer(Inspector & inspector, Arguments const &)
{
    QVector<QStringList> rows;
    QJsonArray json;
    for (int number = 0; number <= 8; ++number) {
        auto const mode = OutputMode(number);
        int const onFour = CDevicelore::speakerCount(mode, 4);
        int const onTwo = CDevicelore::speakerCount(mode, 2);
        rows.append({QString::number(number), groupsText(inspector.facade(), mode), QString::number(onFour),
                     QString::number(onTwo)});
        json.append(QJsonObject{{QStringLiteral("mode"), number},
                                {QStringLiteral("channels"), channelsJson(inspector.facade(), mode)},
                                {QStringLiteral("speakers"), onFour},
                                {QStringLiteral("speakersOnTwoChannels"), onTwo}});
    }
    Answer answer;
    answer.text = tableText({QStringLiteral("MODE"), QStringLiteral("CHANNELS"), QStringLiteral("SPEAKERS"),
                             QStringLiteral("ON TWO CHANNELS")},
                            rows);
    answer.json = json;
    return answer;
}

} // namespace kestrova::inspector

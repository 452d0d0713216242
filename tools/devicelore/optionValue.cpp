#include "optionValue.h"

#include <QLocale>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

int numberOption(Arguments const & arguments, char const * name, int lowest, int highest, int ifMissing)
{
    QString const option = QLatin1String(name);
    if (!arguments.options.contains(option))
        return ifMissing;
    QString const text = arguments.options.value(option);
    bool isNumber = false;
    int const number = text.toInt(&isNumber, 0);
    if (!isNumber || number < lowest || number > highest)
        throw Failure(ExitUsage, QStringLiteral("--%1 takes a number from %2 to %3, not '%4'")
                                     .arg(option)
                                     .arg(lowest)
                                     .arg(highest)
                                     .arg(text));
    return number;
}

std::vector<CommandOption> channelOptions()
{
    return {{"speaker", "ID", "ask about a channel with this speaker, 1 to 65535"},
            {"input", nullptr, "ask about the input side"},
            {"output", nullptr, "ask about the output side"}};
}

std::unique_ptr<CDeviceChannelInfo> channelOption(Arguments const & arguments)
{
    QStringList given;
    for (CommandOption const & option : channelOptions()) {
        if (arguments.options.contains(QLatin1String(option.name)))
            given.append(QLatin1String(option.name));
    }
    if (given.isEmpty())
        return nullptr;
    if (given.size() > 1)
        throw Failure(ExitUsage, QStringLiteral("--%1 and --%2 exclude each other").arg(given[0], given[1]));
    if (given.first() == QLatin1String("input"))
        return std::make_unique<CDeviceChannelInfo>(ChannelTypeInput);
    if (given.first() == QLatin1String("output"))
        return std::make_unique<CDeviceChannelInfo>(ChannelTypeOutput);
    auto channel = std::make_unique<CDeviceChannelInfo>();
    channel->SetSpeakerId(static_cast<unsigned short>(numberOption(arguments, "speaker", 1, 65535, 1)));
    return channel;
}

QString channelText(CDeviceChannelInfo const * channel)
{
    if (channel == nullptr)
        return {};
    switch (channel->GetChannelType()) {
    case ChannelTypeSpeaker:
        return QStringLiteral(" on speaker %1").arg(channel->GetSpeakerId());
    case ChannelTypeInput:
        return QStringLiteral(" on the input side");
    default:
        return QStringLiteral(" on the output side");
    }
}

QString numberText(double number)
{
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

} // namespace kestrova::inspector

#include "command.h"
#include "description.h"
#include "deviceArgument.h"
#include "deviceStory.h"
#include "inspector.h"
#include "objectStory.h"
#include "optionValue.h"

#include <QJsonObject>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

Answer deviceAnswer(Inspector & inspector, Description const & description)
{
    Answer answer;
    answer.text = descriptionSection(inspector, description) + QLatin1Char('\n') +
                  modelAndContentSections(inspector, description);
    answer.json = storyJson(inspector, description, true);
    return answer;
}

Answer noDescriptionAnswer(Inspector & inspector, Description const & description)
{
    return {descriptionSection(inspector, description), storyJson(inspector, description, false),
            ExitNotFound,
            QStringLiteral("there is no description of %1 (%2)")
                .arg(description.asked.toString(), reasonText(description))};
}

Answer propertyAnswer(Inspector & inspector, Description const & description, QString const & property,
                      CDeviceChannelInfo const * channel)
{
    Answer answer = objectStory(inspector, description.found, questionOfArgument(property), channel);
    QJsonObject json = storyJson(inspector, description, false);
    json.insert(QStringLiteral("object"), answer.json);
    answer.json = json;
    answer.text =
        QStringLiteral("%1 of %2%3\n\n").arg(property, description.found.toString(), channelText(channel)) +
        briefDescriptionSection(inspector.cache(), description) + QLatin1Char('\n') + answer.text;
    return answer;
}

} // namespace

Answer explainAnswer(Inspector & inspector, Arguments const & arguments)
{
    std::unique_ptr<CDeviceChannelInfo> const channel = channelOption(arguments);
    Description const description =
        describe(inspector.cache(), guidOfArgument(inspector.cache(), arguments.words.first()));
    if (description.found.isNull())
        return noDescriptionAnswer(inspector, description);
    if (arguments.words.size() == 1)
        return deviceAnswer(inspector, description);
    return propertyAnswer(inspector, description, arguments.words.at(1), channel.get());
}

} // namespace kestrova::inspector

#include "storyText.h"

#include <algorithm>
#include <iterator>

namespace kestrova::inspector {

QString sectionText(QString const & heading, StoryFields const & fields)
{
    StoryFields told; // an empty field would still widen the column of names
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(told),
                 [](auto const & field) { return !field.second.isEmpty(); });
    QString text = heading + QLatin1Char('\n');
    for (QString const & line : tools::fieldsText(told).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        text += QStringLiteral("  ") + line + QLatin1Char('\n');
    return text;
}

QString neededText(int needed, int callersLevel)
{
    return QStringLiteral("level %1 is needed, the caller has %2%3")
        .arg(needed)
        .arg(callersLevel)
        .arg(needed > callersLevel ? QStringLiteral(": refused") : QString());
}

} // namespace kestrova::inspector

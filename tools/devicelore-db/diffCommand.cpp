#include "command.h"

#include "diff/comparison.h"

#include <algorithm>

namespace kestrova::authoring {

namespace {

constexpr auto ExitBreaking = static_cast<ExitCode>(1);

SetView viewOfPath(QString const & path)
{
    DescriptionSet set({path});
    for (QString const & file : set.fileNames()) {
        if (!set.trouble(file).isEmpty())
            throw Failure(ExitDatabase, set.trouble(file));
    }
    return viewOf(set);
}

Things deviceOf(SetView const & view, QString const & guid, QString const & path)
{
    auto const device = view.devices.constFind(guid.toUpper());
    if (device == view.devices.constEnd())
        throw Failure(ExitNotFound,
                      QStringLiteral("'%1' has no description %2; `devicelore devices --databases "
                                     "%1` lists all")
                          .arg(path, guid));
    return *device;
}

/// --device A B SET: the first GUID is the option's value, the second one a word.
QVector<Change> changesOfDevices(ParsedArguments const & arguments)
{
    if (arguments.words.size() != 2)
        throw Failure(ExitUsage, QStringLiteral("usage: devicelore-db diff --device GUID GUID FILE|DIR; see "
                                                "devicelore-db diff --help"));
    QString const & path = arguments.words.at(1);
    SetView const view = viewOfPath(path);
    return changesBetween(deviceOf(view, arguments.value("device"), path),
                          deviceOf(view, arguments.words.at(0), path), arguments.words.at(0).toUpper());
}

} // namespace

Answer diff(ParsedArguments const & arguments)
{
    QVector<Change> const changes =
        arguments.isSet("device")
            ? changesOfDevices(arguments)
            : changesBetween(viewOfPath(arguments.words.at(0)), viewOfPath(arguments.words.at(1)));
    bool const isBroken =
        std::any_of(changes.begin(), changes.end(), [](Change const & change) { return change.isBreaking; });
    return {changesText(changes), changesJson(changes), isBroken ? ExitBreaking : ExitOk, {}};
}

} // namespace kestrova::authoring

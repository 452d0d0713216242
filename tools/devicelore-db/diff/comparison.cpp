#include "diff/comparison.h"

#include "records/formatSpec.h"
#include "records/latin1Text.h"
#include "records/objectDef.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

// --- What breaks ---

bool always(QString const &, QString const &)
{
    return true;
}

bool ifRaised(QString const & before, QString const & after)
{
    return after.toDouble() > before.toDouble();
}

bool ifLowered(QString const & before, QString const & after)
{
    return after.toDouble() < before.toDouble();
}

/// Each digit is a level.
bool ifADigitIsRaised(QString const & before, QString const & after)
{
    return after.toInt() / 10 > before.toInt() / 10 || after.toInt() % 10 > before.toInt() % 10;
}

/// Values on the old grid lie on the new one only when the old step is a multiple of the new. Without a step
/// nothing is rounded.
bool ifStepsAreLost(QString const & before, QString const & after)
{
    if (after.toDouble() <= 0)
        return false;
    if (before.toDouble() <= 0)
        return true;
    double const steps = before.toDouble() / after.toDouble();
    return !(std::abs(steps - std::round(steps)) < 1e-9 * std::max(1.0, std::abs(steps)));
}

/// Rights that are gone, and texts that are converted otherwise.
bool ifRightsAreLost(QString const & before, QString const & after)
{
    constexpr int rights = 0x3;
    constexpr int notConverted = 0x400;
    int const lost = before.toInt() & ~after.toInt();
    return (lost & rights) != 0 || ((before.toInt() ^ after.toInt()) & notConverted) != 0;
}

/// A wider field is no harm; other bytes, another scale or another unit are.
bool ifValuesMeanOtherwise(QString const & before, QString const & after)
{
    auto const meaning = [](QString const & format) {
        Latin1Text const text(format);
        FormatSpec spec;
        parseFormatSpec(text.constData(), spec);
        return std::make_tuple(spec.conversion, spec.size, spec.precision, CObjectDef::unit(format));
    };
    return meaning(before) != meaning(after);
}

struct BreakRule {
    char const * thing; ///< the first word of it
    char const * member;
    bool (*isBreaking)(QString const & before, QString const & after);
};

/// Changes of all other members break nothing: names, texts, comments, defaults.
constexpr BreakRule breakRules[] = {
    {"device", "model", always},
    {"device", "level", ifRaised},
    {"device", "remote numbering", always},
    {"object", "number", always},
    {"object", "channels", ifLowered},
    {"object", "records", ifLowered},
    {"object", "minimum", ifRaised},
    {"object", "maximum", ifLowered},
    {"object", "step", ifStepsAreLost},
    {"object", "format", ifValuesMeanOtherwise},
    {"object", "flags", ifRightsAreLost},
    {"object", "access", ifADigitIsRaised},
    {"object", "size", always},
    {"speaker", "class", always},
    {"speaker", "Cablefit count", ifLowered},
    {"speaker", "Wavefold level", ifRaised},
    {"hardware", "model", always},
    {"support", "level", ifRaised},
    {"group", "level", ifRaised},
    {"class", "ways", always},
};

bool isBreaking(QString const & thing, QString const & member, QString const & before, QString const & after)
{
    if (after.isNull())
        return true; // what is gone may be needed
    if (before.isNull())
        return false;
    QString const kind = thing.section(QLatin1Char(' '), 0, 0);
    auto const rule = std::find_if(std::begin(breakRules), std::end(breakRules), [&](BreakRule const & one) {
        return kind == QLatin1String(one.thing) && member == QLatin1String(one.member);
    });
    return rule != std::end(breakRules) && rule->isBreaking(before, after);
}

// --- Comparing ---

/// Collects changes, with the devices that have them alike.
class Changes {
public:
    void compare(Things const & before, Things const & after, QString const & device)
    {
        for (QString const & thing : keysOf(before, after)) {
            if (!after.contains(thing))
                add({Change::Removed, thing, {}, {}, {}, true, {}}, device);
            else if (!before.contains(thing))
                add({Change::Added, thing, {}, {}, {}, false, {}}, device);
            else
                compareMembers(thing, before.value(thing), after.value(thing), device);
        }
    }

    void add(Change const & change, QString const & device)
    {
        Key const key{!device.isNull(), change.thing,  change.member,
                      change.kind,      change.before, change.after};
        Change & entry = changes.insert({key, change}).first->second;
        if (!device.isNull())
            entry.devices.append(device);
    }

    QVector<Change> all() const
    {
        QVector<Change> list;
        for (auto const & [key, change] : changes)
            list.append(change);
        return list;
    }

private:
    using Key = std::tuple<bool, QString, QString, int, QString, QString>;

    template <typename Map>
    static QStringList keysOf(Map const & before, Map const & after)
    {
        QStringList keys = before.keys();
        for (QString const & key : after.keys()) {
            if (!before.contains(key))
                keys.append(key);
        }
        return keys;
    }

    void compareMembers(QString const & thing, Members const & before, Members const & after,
                        QString const & device)
    {
        for (QString const & member : keysOf(before, after)) {
            QString const old = before.value(member);
            QString const now = after.value(member);
            if (old == now && before.contains(member) == after.contains(member))
                continue;
            Change::Kind const kind = !after.contains(member)    ? Change::Removed
                                      : !before.contains(member) ? Change::Added
                                                                 : Change::Changed;
            bool const breaks =
                kind == Change::Removed || (kind == Change::Changed && isBreaking(thing, member, old, now));
            add({kind, thing, member, old, now, breaks, {}}, device);
        }
    }

    std::map<Key, Change> changes;
};

} // namespace

QVector<Change> changesBetween(SetView const & before, SetView const & after)
{
    Changes changes;
    changes.compare(before.things, after.things, {});
    for (auto device = before.devices.constBegin(); device != before.devices.constEnd(); ++device) {
        if (!after.devices.contains(device.key()))
            changes.add({Change::Removed, QStringLiteral("device ") + device.key(), {}, {}, {}, true, {}},
                        {});
        else
            changes.compare(*device, after.devices.value(device.key()), device.key());
    }
    for (QString const & guid : after.devices.keys()) {
        if (!before.devices.contains(guid))
            changes.add({Change::Added, QStringLiteral("device ") + guid, {}, {}, {}, false, {}}, {});
    }
    return changes.all();
}

QVector<Change> changesBetween(Things const & before, Things const & after, QString const & device)
{
    Changes changes;
    changes.compare(before, after, device);
    return changes.all();
}

// --- Telling ---

namespace {

QString kindName(Change::Kind kind)
{
    switch (kind) {
    case Change::Added:
        return QStringLiteral("added");
    case Change::Removed:
        return QStringLiteral("removed");
    case Change::Changed:
        return QStringLiteral("changed");
    }
    return {};
}

QString devicesInBrackets(QStringList const & devices)
{
    if (devices.isEmpty())
        return {};
    if (devices.size() == 1)
        return QStringLiteral("  (%1)").arg(devices.first());
    return QStringLiteral("  (%1 and %2 more)").arg(devices.first(), QString::number(devices.size() - 1));
}

QString changeText(Change const & change)
{
    QString text = change.thing;
    if (!change.member.isEmpty())
        text += QStringLiteral(", ") + change.member;
    switch (change.kind) {
    case Change::Added:
        text += QStringLiteral(": added");
        break;
    case Change::Removed:
        text += QStringLiteral(": removed");
        break;
    case Change::Changed:
        text += QStringLiteral(": %1 -> %2").arg(shownValue(change.before), shownValue(change.after));
        break;
    }
    return (change.isBreaking ? QStringLiteral("breaking    ") : QStringLiteral("compatible  ")) + text +
           devicesInBrackets(change.devices) + QLatin1Char('\n');
}

int breakingCount(QVector<Change> const & changes)
{
    return static_cast<int>(std::count_if(changes.begin(), changes.end(),
                                          [](Change const & change) { return change.isBreaking; }));
}

} // namespace

QString changesText(QVector<Change> const & changes)
{
    QString text;
    for (Change const & change : changes)
        text += changeText(change);
    return text + QStringLiteral("%1 breaking, %2 compatible\n")
                      .arg(QString::number(breakingCount(changes)),
                           QString::number(changes.size() - breakingCount(changes)));
}

QJsonObject changesJson(QVector<Change> const & changes)
{
    QJsonArray list;
    for (Change const & change : changes) {
        QJsonObject entry{{QStringLiteral("change"), kindName(change.kind)},
                          {QStringLiteral("breaking"), change.isBreaking},
                          {QStringLiteral("thing"), change.thing},
                          {QStringLiteral("member"), change.member},
                          {QStringLiteral("devices"), QJsonArray::fromStringList(change.devices)}};
        if (!change.before.isNull())
            entry.insert(QStringLiteral("before"), change.before);
        if (!change.after.isNull())
            entry.insert(QStringLiteral("after"), change.after);
        list.append(entry);
    }
    return {{QStringLiteral("changes"), list},
            {QStringLiteral("breaking"), breakingCount(changes)},
            {QStringLiteral("compatible"), changes.size() - breakingCount(changes)}};
}

} // namespace kestrova::authoring

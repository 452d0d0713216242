#include "cache/driverCacheObjectItem.h"
#include "facade/devicelore.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace kestrova::Morvel::Devicelore;

// The order of the virtual operations is part of the binary interface: a program that was built against an
// earlier library calls them by their place in the table.

namespace {

// QObject's own: three of the meta-object, two destructors, seven event handlers.
constexpr std::size_t firstPlace = 12;

/// The operation at a place of the object's table, as a function that takes the object first.
template <typename Function, typename Object>
Function operationAt(Object const & object, std::size_t place)
{
    void const * const * table = nullptr;
    std::memcpy(&table, static_cast<void const *>(&object), sizeof(table));
    Function function = nullptr;
    std::memcpy(&function, table + place, sizeof(function));
    return function;
}

class Recording : public CDevicelore {
public:
    bool realToDevice(CObjectDef const &, QVariant &) override { return record("realToDevice value"); }

    bool realToDevice(CObjectDef &) override { return record("realToDevice record"); }

    bool deviceToReal(CObjectDef const &, QVariant &) override { return record("deviceToReal value"); }

    bool deviceToReal(CObjectDef &) override { return record("deviceToReal record"); }

    ValidationState validateValue(QVariant &, CObjectDef const &, bool) const override
    {
        record("validateValue");
        return Truncated;
    }

    QStringList enumDevicePropertyFilter() const override
    {
        record("enumDevicePropertyFilter");
        return {QStringLiteral("a")};
    }

    QStringList devicePropertyFilter(QString const & name) const override
    {
        record("devicePropertyFilter");
        return {name};
    }

    QStringList devicePropertyFilterByExpression(QString const & expression) const override
    {
        record("devicePropertyFilterByExpression");
        return {expression};
    }

    mutable std::string last;

private:
    bool record(char const * name) const
    {
        last = name;
        return true;
    }
};

class RecordingCache : public CDriverCache {
public:
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *&, CDriverCacheKey *) override
    {
        return GetItemNotAvailable;
    }

    QString filterName(CDeviceGuid const &, CDeviceChannelInfo const *, unsigned char number) override
    {
        return QString::number(number);
    }

    unsigned short minSpeakerId() const override { return 7; }

    unsigned short maxSpeakerId() const override { return 8; }

    TharnError speakerDef(unsigned short, QList<CSpeakerDef> &, QFlags<SpeakerDefMask>) override
    {
        return TharnNotFound;
    }
};

} // namespace

TEST(VirtualOrder, OfTheFacade)
{
    Recording facade;
    CDevicelore * const base = &facade;
    CObjectDef object;
    QVariant value;

    using Convert = bool (*)(CDevicelore *, CObjectDef const &, QVariant &);
    using ConvertRecord = bool (*)(CDevicelore *, CObjectDef &);
    using Validate =
        CDevicelore::ValidationState (*)(CDevicelore const *, QVariant &, CObjectDef const &, bool);
    using Enumerate = QStringList (*)(CDevicelore const *);
    using List = QStringList (*)(CDevicelore const *, QString const &);

    EXPECT_TRUE(operationAt<Convert>(facade, firstPlace)(base, object, value));
    EXPECT_EQ(facade.last, "realToDevice value");
    EXPECT_TRUE(operationAt<ConvertRecord>(facade, firstPlace + 1)(base, object));
    EXPECT_EQ(facade.last, "realToDevice record");
    EXPECT_TRUE(operationAt<Convert>(facade, firstPlace + 2)(base, object, value));
    EXPECT_EQ(facade.last, "deviceToReal value");
    EXPECT_TRUE(operationAt<ConvertRecord>(facade, firstPlace + 3)(base, object));
    EXPECT_EQ(facade.last, "deviceToReal record");
    EXPECT_EQ(operationAt<Validate>(facade, firstPlace + 4)(base, value, object, true),
              CDevicelore::Truncated);
    EXPECT_EQ(facade.last, "validateValue");
    EXPECT_EQ(operationAt<Enumerate>(facade, firstPlace + 5)(base), QStringList{QStringLiteral("a")});
    EXPECT_EQ(facade.last, "enumDevicePropertyFilter");
    EXPECT_EQ(operationAt<List>(facade, firstPlace + 6)(base, QStringLiteral("b")),
              QStringList{QStringLiteral("b")});
    EXPECT_EQ(facade.last, "devicePropertyFilter");
    EXPECT_EQ(operationAt<List>(facade, firstPlace + 7)(base, QStringLiteral("c")),
              QStringList{QStringLiteral("c")});
    EXPECT_EQ(facade.last, "devicePropertyFilterByExpression");
}

TEST(VirtualOrder, OfTheCache)
{
    RecordingCache cache;
    CDriverCache * const base = &cache;
    CDriverCacheObjectItem * item = nullptr;
    QList<CSpeakerDef> speakers;

    using GetObject = GetItemReturnValue (*)(CDriverCache *, CDriverCacheObjectItem *&, CDriverCacheKey *);
    using FilterName =
        QString (*)(CDriverCache *, CDeviceGuid const &, CDeviceChannelInfo const *, unsigned char);
    using Bound = unsigned short (*)(CDriverCache const *);
    using Speaker =
        TharnError (*)(CDriverCache *, unsigned short, QList<CSpeakerDef> &, QFlags<SpeakerDefMask>);

    EXPECT_EQ(operationAt<GetObject>(cache, firstPlace)(base, item, nullptr), GetItemNotAvailable);
    EXPECT_EQ(operationAt<FilterName>(cache, firstPlace + 1)(base, CDeviceGuid(), nullptr, 5),
              QStringLiteral("5"));
    EXPECT_EQ(operationAt<Bound>(cache, firstPlace + 2)(base), 7);
    EXPECT_EQ(operationAt<Bound>(cache, firstPlace + 3)(base), 8);
    EXPECT_EQ(operationAt<Speaker>(cache, firstPlace + 4)(base, 0, speakers, {}), TharnNotFound);
}

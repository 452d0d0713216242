#include "records/objectDef.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using namespace kestrova::Morvel::Devicelore;

namespace {

std::vector<int> ocaClassId(CObjectDef const & object)
{
    return std::vector<int>(object.ocaClassId(), object.ocaClassId() + 16);
}

std::vector<int> const noOcaClassId(16, 0);

CObjectDef filled()
{
    CObjectDef object(0x2003);
    object.setName(QStringLiteral("Name"));
    object.setDisplayName(QStringLiteral("Display"));
    object.SetBoxNumber(0x12);
    object.SetObjectNumber(0x34);
    object.setChannelCount(4);
    object.setRecordCount(5);
    object.setMin(-6.5);
    object.setMax(7.5);
    object.setStep(0.25);
    object.setFormat(QStringLiteral("%3d"));
    object.setAccess(21);
    object.setDefaultValue(QVariant(1.5));
    object.setSize(8);
    object.setTextOffset(0x90000000);
    object.setComment(QStringLiteral("Comment"));
    object.setWaitTime(10);
    object.setWaitStates(11);
    unsigned short const ids[] = {1, 2, 3};
    object.setOcaClassId(ids, 3);
    object.setClassId(12);
    object.setMask(ObjectDefMask(0x70));
    object.setObjectType(CObjectDef::ObjectTypeHex);
    object.setUnit(QStringLiteral(" dB"));
    object.setDisplaySubName(QStringLiteral("---"));
    object.SetOnoType(13);
    object.setPropertyHash(0xFFFFFFFF);
    return object;
}

} // namespace

TEST(ObjectDef, StartsEmptyWithAStepOfOneAndNoType)
{
    CObjectDef const object;
    EXPECT_EQ(object.name(), QString());
    EXPECT_EQ(object.displayName(), QString());
    EXPECT_EQ(object.BoxNumber(), 0);
    EXPECT_EQ(object.ObjectNumber(), 0);
    EXPECT_EQ(object.channelCount(), 0);
    EXPECT_EQ(object.recordCount(), 0);
    EXPECT_EQ(object.minValue(), 0.0);
    EXPECT_EQ(object.maxValue(), 0.0);
    EXPECT_EQ(object.step(), 1.0);
    EXPECT_EQ(object.format(), QString());
    EXPECT_EQ(object.flags(), 0);
    EXPECT_EQ(object.access(), 0);
    EXPECT_FALSE(object.defaultValue().isValid());
    EXPECT_EQ(object.size(), 0);
    EXPECT_EQ(object.textOffset(), 0U);
    EXPECT_EQ(object.comment(), QString());
    EXPECT_EQ(object.waitTime(), 0);
    EXPECT_EQ(object.waitStates(), 0);
    EXPECT_EQ(ocaClassId(object), noOcaClassId);
    EXPECT_EQ(object.ocaClassIdSize(), 0);
    EXPECT_EQ(object.classId(), 0);
    EXPECT_EQ(object.mask(), QFlags<ObjectDefMask>());
    EXPECT_EQ(object.objectType(), 255);
    EXPECT_EQ(object.unit(), QString());
    EXPECT_EQ(object.displaySubName(), QString());
    EXPECT_EQ(object.GetOnoType(), 0);
    EXPECT_EQ(object.propertyHash(), 0U);
}

TEST(ObjectDef, EmptiesItsClassIdWhenItIsGivenItsOwn)
{
    CObjectDef object = filled();
    object.setOcaClassId(object.ocaClassId(), 2);
    EXPECT_EQ(ocaClassId(object), noOcaClassId);
    EXPECT_EQ(object.ocaClassIdSize(), 2);
}

TEST(ObjectDef, TakesItsFlagsWhenItIsMade)
{
    EXPECT_EQ(CObjectDef(0xFFFF).flags(), 0xFFFF);
}

TEST(ObjectDef, KeepsWhatIsSet)
{
    CObjectDef const original = filled();
    CObjectDef assigned;
    assigned = original;
    for (CObjectDef const & object : {original, assigned}) {
        EXPECT_EQ(object.name(), QStringLiteral("Name"));
        EXPECT_EQ(object.displayName(), QStringLiteral("Display"));
        EXPECT_EQ(object.BoxNumber(), 0x12);
        EXPECT_EQ(object.ObjectNumber(), 0x34);
        EXPECT_EQ(object.channelCount(), 4);
        EXPECT_EQ(object.recordCount(), 5);
        EXPECT_EQ(object.minValue(), -6.5);
        EXPECT_EQ(object.maxValue(), 7.5);
        EXPECT_EQ(object.step(), 0.25);
        EXPECT_EQ(object.format(), QStringLiteral("%3d"));
        EXPECT_EQ(object.flags(), 0x2003);
        EXPECT_EQ(object.access(), 21);
        EXPECT_EQ(object.defaultValue(), QVariant(1.5));
        EXPECT_EQ(object.size(), 8);
        EXPECT_EQ(object.textOffset(), 0x90000000U);
        EXPECT_EQ(object.comment(), QStringLiteral("Comment"));
        EXPECT_EQ(object.waitTime(), 10);
        EXPECT_EQ(object.waitStates(), 11);
        EXPECT_EQ(ocaClassId(object), (std::vector<int>{1, 2, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
        EXPECT_EQ(object.ocaClassIdSize(), 3);
        EXPECT_EQ(object.classId(), 12);
        EXPECT_EQ(object.mask(), QFlags<ObjectDefMask>(ObjectDefMask(0x70)));
        EXPECT_EQ(object.objectType(), 3);
        EXPECT_EQ(object.unit(), QStringLiteral(" dB"));
        EXPECT_EQ(object.displaySubName(), QStringLiteral("---"));
        EXPECT_EQ(object.GetOnoType(), 13);
        EXPECT_EQ(object.propertyHash(), 0xFFFFFFFFU);
    }
}

TEST(ObjectDef, ReadsItsFlagBits)
{
    struct Row {
        unsigned short flags;
        bool readable, writeable, noCan;
    };

    Row const rows[] = {
        {0x0000, false, false, false}, {0x0001, true, false, false}, {0x0002, false, true, false},
        {0x2000, false, false, true},  {0xFFFF, true, true, true},   {0xDFFC, false, false, false},
    };
    for (Row const & row : rows) {
        CObjectDef const object(row.flags);
        EXPECT_EQ(object.isReadable(), row.readable) << row.flags;
        EXPECT_EQ(object.isWriteable(), row.writeable) << row.flags;
        EXPECT_EQ(object.isNoCan(), row.noCan) << row.flags;
    }
}

TEST(ObjectDef, JoinsBoxAndObjectNumberWithoutMasking)
{
    struct Row {
        char const * name;
        unsigned short box, object;
        int full;
    };

    Row const rows[] = {
        {"plain", 0x12, 0x34, 0x1234},
        {"box beyond its five bits", 0xE1, 0x05, 0xE105},
        {"box beyond its byte", 0x1FF, 0x01, 0xFF01},
        {"object number runs into the box", 0x01, 0x0234, 0x0334},
    };
    for (Row const & row : rows) {
        CObjectDef object;
        object.SetBoxNumber(row.box);
        object.SetObjectNumber(row.object);
        EXPECT_EQ(object.FullObjectNumber(), row.full) << row.name;
    }
}

TEST(ObjectDef, CopiesAtMostSixteenOcaClassEntriesAndKeepsTheSizeAsGiven)
{
    unsigned short ids[255];
    for (unsigned short i = 0; i < 255; ++i)
        ids[i] = static_cast<unsigned short>(1000 + i);

    struct Row {
        unsigned char count;
        int copied;
    };

    Row const rows[] = {{0, 0},   {1, 1},    {3, 3},   {16, 16}, {17, 16},
                        {20, 16}, {127, 16}, {128, 0}, {129, 1}, {255, 16}};
    for (Row const & row : rows) {
        SCOPED_TRACE(int(row.count));
        CObjectDef object;
        unsigned short const before[] = {7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7};
        object.setOcaClassId(before, 16);
        object.setOcaClassId(ids, row.count);
        EXPECT_EQ(object.ocaClassIdSize(), row.count);
        for (int i = 0; i < 16; ++i)
            EXPECT_EQ(object.ocaClassId()[i], i < row.copied ? 1000 + i : 0) << i;
    }
}

TEST(ObjectDef, EmptiesTheOcaClassAndKeepsItsSizeForANullPointer)
{
    CObjectDef object = filled();
    object.setOcaClassId(nullptr, 5);
    EXPECT_EQ(ocaClassId(object), noOcaClassId);
    EXPECT_EQ(object.ocaClassIdSize(), 3);
}

TEST(ObjectDefMask, HasItsNumbers)
{
    std::vector<std::pair<ObjectDefMask, unsigned>> const rows = {
        {ObjectDefName, 0x1},
        {ObjectDefObjectNumber, 0x2},
        {ObjectDefChannelCount, 0x4},
        {ObjectDefRecordCount, 0x8},
        {ObjectDefMinValue, 0x10},
        {ObjectDefMaxValue, 0x20},
        {ObjectDefStep, 0x40},
        {ObjectDefFormat, 0x80},
        {ObjectDefFlags, 0x100},
        {ObjectDefAccess, 0x400},
        {ObjectDefDefaultValue, 0x800},
        {ObjectDefSize, 0x1000},
        {ObjectDefTextOffset, 0x2000},
        {ObjectDefDisplayName, 0x4000},
        {ObjectDefComment, 0x8000},
        {ObjectDefWaitTime, 0x20000},
        {ObjectDefWaitStates, 0x40000},
        {ObjectDefObjectType, 0x80000},
        {ObjectDefUnit, 0x100000},
        {ObjectDefDisplaySubName, 0x200000},
        {ObjectDefOcaClassId, 0x400000},
        {ObjectDefClassId, 0x800000},
        {ObjectDefPropertyHash, 0x1000000},
        {ObjectDefOnoType, 0x2000000},
        {ObjectDefBoxNumber, 0x4000000},
    };
    EXPECT_EQ(rows.size(), 25U);
    for (auto const & [mask, number] : rows)
        EXPECT_EQ(unsigned(mask), number);
}

TEST(ObjectDefMask, IsJoinedToAMask)
{
    QFlags<ObjectDefMask> const mask = ObjectDefMinValue | ObjectDefMaxValue | ObjectDefStep;
    EXPECT_EQ(mask, QFlags<ObjectDefMask>(ObjectDefMask(0x70)));
}

TEST(ObjectType, HasItsNumbers)
{
    EXPECT_EQ(CObjectDef::ObjectTypeToggle, 0);
    EXPECT_EQ(CObjectDef::ObjectTypeNumber, 1);
    EXPECT_EQ(CObjectDef::ObjectTypeString, 2);
    EXPECT_EQ(CObjectDef::ObjectTypeHex, 3);
    EXPECT_EQ(CObjectDef::ObjectTypeHexDump, 4);
    EXPECT_EQ(CObjectDef::ObjectTypeUnknown, 255);
}

TEST(ConvertResult, HasItsNumbers)
{
    EXPECT_EQ(ConvertOk, 0);
    EXPECT_EQ(ConvertNoFormatText, -2);
    EXPECT_EQ(ConvertNoConversion, -3);
    EXPECT_EQ(ConvertSizeNotPositive, -4);
    EXPECT_EQ(ConvertSizeTooLarge, -5);
    EXPECT_EQ(ConvertSizeAboveEight, -6);
    EXPECT_EQ(ConvertNoBuffer, -8);
    EXPECT_EQ(ConvertUnknownConversion, -10);
    EXPECT_EQ(ConvertUnparsable, -11);
    EXPECT_EQ(ConvertNoLength, -12);
    EXPECT_EQ(ConvertTooFewBytes, -13);
}

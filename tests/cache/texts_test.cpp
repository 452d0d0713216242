#include "exposedCache.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlQuery>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace kestrova::test::texts {

namespace {

using Texts = QList<QPair<int, QString>>;

CDeviceGuid const device(0xC7000005);
CDeviceGuid const sibling(0xC7000006);
CDeviceGuid const stranger(0xC7000007);

QString const guids =
    QStringLiteral("CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);");
QString const table =
    QStringLiteral("CREATE TABLE TextsObjectValues (TextOffset INTEGER, Value INTEGER, TextShort_en_US TEXT, "
                   "TextShort_de_DE TEXT);");

struct ValueTexts : ::testing::Test {
    ValueTexts()
    {
        folder.add(
            QStringLiteral("a.db3"),
            guids + table +
                QStringLiteral("INSERT INTO Guids VALUES ('C7000005', 'Talvo', '1', 1), "
                               "('C7000006', 'Hesko', '1', 1);"
                               "INSERT INTO TextsObjectValues VALUES (10, 0, 'Off', 'Aus'), "
                               "(10, 1, 'On', 'An'), (10, 1, 'Active', 'Aktiv'), (10, -3, '', 'Leer'), "
                               "(0, 5, 'Zero', 'Null'), (4294967295, 1, 'Last', 'Letzter'), "
                               "(20, 7, NULL, NULL);"));
        folder.add(QStringLiteral("b.db3"),
                   guids + table +
                       QStringLiteral("INSERT INTO Guids VALUES ('C7000007', 'Zerin', '1', 1);"
                                      "INSERT INTO TextsObjectValues VALUES (10, 0, 'Closed', 'Zu');"));
        EXPECT_EQ(cache.openDatabases(folder.dir()), 2);
    }

    /// Makes the texts of a database unreadable, so that only what is stored can answer.
    void closeDatabases() { cache.closeDatabases(); }

    DatabaseFolder folder;
    ExposedCache cache;
    MessageRecorder recorder;
};

} // namespace

TEST_F(ValueTexts, AreFoundByOffsetAndValueInTheDevicesOwnDatabase)
{
    struct Row {
        char const * name;
        CDeviceGuid guid;
        unsigned offset;
        int value;
        QString text; ///< null: there is none
    };

    Row const rows[] = {
        {"a value", device, 10, 0, QStringLiteral("Off")},
        {"of two rows the last", device, 10, 1, QStringLiteral("Active")},
        {"an empty text is one", device, 10, -3, QStringLiteral("")},
        {"offset 0 is an ordinary one", device, 0, 5, QStringLiteral("Zero")},
        {"the highest offset", device, 4294967295U, 1, QStringLiteral("Last")},
        {"another device of the database", sibling, 10, 0, QStringLiteral("Off")},
        {"a device of another database", stranger, 10, 0, QStringLiteral("Closed")},
        {"no such value", device, 10, 2, QString()},
        {"no such value there", stranger, 10, 1, QString()},
        {"no such offset", device, 11, 0, QString()},
        {"no such device", CDeviceGuid(0xC7000105), 10, 0, QString()},
        {"no device", CDeviceGuid(), 10, 0, QString()},
    };
    for (Row const & row : rows) {
        QString const text = cache.text(row.guid, row.offset, row.value);
        EXPECT_EQ(text, row.text) << row.name;
        EXPECT_EQ(text.isNull(), row.text.isNull()) << row.name;
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ValueTexts, OfAGroupAreListedTheLastRowInFront)
{
    Texts list{{99, QStringLiteral("before")}};
    EXPECT_EQ(cache.textList(device, 10, list), 4);
    EXPECT_EQ(list, (Texts{{-3, QStringLiteral("")},
                           {1, QStringLiteral("Active")},
                           {1, QStringLiteral("On")},
                           {0, QStringLiteral("Off")}}))
        << "and replace what the list held";
    EXPECT_EQ(cache.textList(device, 20, list), 1);
    EXPECT_EQ(list.first().first, 7);
    EXPECT_EQ(cache.textList(stranger, 10, list), 1);
    EXPECT_EQ(list, (Texts{{0, QStringLiteral("Closed")}}));
}

TEST_F(ValueTexts, OfAnUnknownDeviceLeaveTheListAlone)
{
    Texts const before{{99, QStringLiteral("before")}};
    Texts list = before;
    EXPECT_EQ(cache.textList(CDeviceGuid(), 10, list), -1);
    EXPECT_EQ(cache.textList(CDeviceGuid(0xC7000105), 10, list), -1);
    EXPECT_EQ(list, before);
}

TEST_F(ValueTexts, OfAnOffsetWithoutRowsEmptyTheList)
{
    Texts list{{99, QStringLiteral("before")}};
    EXPECT_EQ(cache.textList(device, 11, list), -1) << "on a database that has not been asked yet";
    EXPECT_EQ(list, Texts());
    list.append(qMakePair(99, QStringLiteral("before")));
    EXPECT_EQ(cache.textList(device, 11, list), -1) << "and on one that has";
    EXPECT_EQ(list, Texts());
}

TEST_F(ValueTexts, AreReadOnceAGroup)
{
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Off"));
    closeDatabases();
    EXPECT_EQ(cache.text(device, 10, 1), QStringLiteral("Active"));
    Texts list;
    EXPECT_EQ(cache.textList(sibling, 10, list), 4) << "both devices share the group";
    EXPECT_TRUE(cache.text(device, 0, 5).isNull()) << "a group that nobody had asked for";
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ValueTexts, AreForgottenWhenTheLanguageChanges)
{
    EXPECT_EQ(cache.textLanguage(), QStringLiteral("TextShort_en_US"));
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Off"));
    cache.setTextLanguage(QStringLiteral("TextShort_de_DE"));
    EXPECT_EQ(cache.textLanguage(), QStringLiteral("TextShort_de_DE"));
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Aus"));
    closeDatabases();
    cache.setTextLanguage(QStringLiteral("TextShort_de_DE"));
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Aus"))
        << "the present language again changes nothing";
    cache.setTextLanguage(QStringLiteral("TextShort_en_US"));
    EXPECT_TRUE(cache.text(device, 10, 0).isNull());
}

TEST_F(ValueTexts, AreMissingInALanguageThatIsNoColumn)
{
    Texts const before{{99, QStringLiteral("before")}};
    for (QString const & language :
         {QStringLiteral("TextShort_fr_FR"), QString(), QStringLiteral("'"), QStringLiteral("%2"),
          QStringLiteral(":TextShort_en_US"), QStringLiteral("x; DROP TABLE TextsObjectValues")}) {
        cache.setTextLanguage(language);
        EXPECT_TRUE(cache.text(device, 10, 0).isNull()) << qPrintable(language);
        Texts list = before;
        EXPECT_EQ(cache.textList(device, 10, list), -1) << qPrintable(language);
        EXPECT_EQ(list, before) << qPrintable(language);
    }
    cache.setTextLanguage(QStringLiteral("TextShort_de_DE"));
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Aus"));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ValueTexts, AreReadInALanguageThatGoesIntoTheStatementAsItStands)
{
    cache.setTextLanguage(QStringLiteral("TextShort_de_DE /* see :de */"));
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Aus"));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ValueTexts, AreEmptiedWithTheCacheWhichKeepsTheLanguage)
{
    cache.setTextLanguage(QStringLiteral("TextShort_de_DE"));
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Aus"));
    cache.setGuidSupportedLevel(1);
    EXPECT_EQ(cache.textLanguage(), QStringLiteral("TextShort_de_DE"));
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Aus")) << "read anew";
    cache.clear();
    EXPECT_EQ(cache.textLanguage(), QStringLiteral("TextShort_de_DE"));
    closeDatabases();
    EXPECT_TRUE(cache.textItems->text(10, 0, QStringLiteral("a.db3")).isNull());
}

TEST_F(ValueTexts, ReadASecondTimeStandInFrontOfTheFirst)
{
    QString const connection = QStringLiteral("b.db3");
    cache.textItems->textFromDb(10, connection);
    DatabaseFolder later;
    later.add(connection, table + QStringLiteral("INSERT INTO TextsObjectValues VALUES (10, 0, 'Shut', ''), "
                                                 "(10, 1, 'Ajar', '');"));
    ExposedCache other;
    ASSERT_EQ(other.openDatabases(later.dir()), 1) << "under the name that the first cache reads from";
    cache.textItems->textFromDb(10, connection);
    Texts list;
    EXPECT_EQ(cache.textItems->textList(10, list, connection), 3);
    EXPECT_EQ(
        list,
        (Texts{{1, QStringLiteral("Ajar")}, {0, QStringLiteral("Shut")}, {0, QStringLiteral("Closed")}}));
    EXPECT_EQ(cache.textItems->text(10, 0, connection), QStringLiteral("Shut"));
}

TEST_F(ValueTexts, OfAKnownGroupAreNotReadAgainForAValueThatItLacks)
{
    EXPECT_EQ(cache.text(device, 10, 0), QStringLiteral("Off"));
    EXPECT_TRUE(cache.text(device, 10, 2).isNull());
    Texts list;
    EXPECT_EQ(cache.textList(device, 10, list), 4) << "read twice, each row would stand twice";
}

TEST_F(ValueTexts, OfACopiedListAreSharedWithItsSource)
{
    class TextList : public CDriverCacheTextItemList {
    public:
        /// Leaves the texts to the other owner.
        void giveUp() { textsOfConnection.clear(); }
    };

    TextList original;
    QString const connection = QStringLiteral("a.db3");
    original.textFromDb(0, connection);
    TextList copy(original);
    copy.textFromDb(10, connection);
    closeDatabases();
    EXPECT_EQ(original.text(10, 0, connection), QStringLiteral("Off")) << "read through the copy";
    EXPECT_EQ(copy.text(0, 5, connection), QStringLiteral("Zero"));
    TextList assigned;
    assigned = copy;
    EXPECT_EQ(assigned.text(10, 0, connection), QStringLiteral("Off"));
    copy.giveUp();
    assigned.giveUp();
}

TEST_F(ValueTexts, OfAConnectionThatIsNoneAreNone)
{
    Texts const before{{99, QStringLiteral("before")}};
    for (QString const & connection : {QString(), QStringLiteral("none.db3")}) {
        Texts list = before;
        EXPECT_TRUE(cache.textItems->text(10, 0, connection).isNull());
        EXPECT_EQ(cache.textItems->textList(10, list, connection), -1);
        EXPECT_EQ(list, before);
        cache.textItems->textFromDb(10, connection);
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(ValueTextsOfOddRows, AreWhatQtMakesOfThem)
{
    DatabaseFolder folder;
    folder.add(
        QStringLiteral("a.db3"),
        guids + QStringLiteral("CREATE TABLE TextsObjectValues (TextOffset, Value, TextShort_en_US);"
                               "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '1', 1);"
                               "INSERT INTO TextsObjectValues VALUES (1, 'text', 12.5), (1, 2.6, x'4100ff'), "
                               "(1, NULL, 'null'), (1, 99999999999999, 'large');"));
    ExposedCache cache;
    MessageRecorder const recorder;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 1);
    EXPECT_EQ(cache.text(device, 1, 0), QStringLiteral("null")) << "a value that is no number counts as 0";
    EXPECT_FALSE(cache.text(device, 1, 3).isNull()) << "2.6 is rounded";
    Texts list;
    EXPECT_EQ(cache.textList(device, 1, list), 4);
    EXPECT_EQ(list.last().second, QStringLiteral("12.5"));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(ValueTextsWithoutTheirTable, AreNone)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"),
               guids + QStringLiteral("INSERT INTO Guids VALUES ('C7000005', 'Talvo', '1', 1);"));
    ExposedCache cache;
    MessageRecorder const recorder;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 1);
    Texts list{{99, QStringLiteral("before")}};
    EXPECT_TRUE(cache.text(device, 10, 0).isNull());
    EXPECT_EQ(cache.textList(device, 10, list), -1);
    EXPECT_EQ(list.size(), 1);
    EXPECT_EQ(recorder.messages(), QStringList());
}

} // namespace kestrova::test::texts

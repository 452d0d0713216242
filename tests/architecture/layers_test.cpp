#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include <stdexcept>

// The layers of the library, from the bottom up. A layer includes itself and what lies below.

namespace {

QStringList const layers{QStringLiteral("core"), QStringLiteral("records"), QStringLiteral("cache"),
                         QStringLiteral("deviceinfo"), QStringLiteral("facade")};

// The cache holds the registry of the device family and the family asks the cache back. The headers
// forward-declare, so that only .cpp files may look up from the cache to the family.
bool isThePairThatMeets(QString const & file, QString const & included)
{
    return file.startsWith(QLatin1String("cache/")) && file.endsWith(QLatin1String(".cpp")) &&
           included.startsWith(QLatin1String("deviceinfo/"));
}

struct Source {
    QString name; ///< below src/
    QString text;
};

QVector<Source> sources()
{
    QDir const root(QStringLiteral(KESTROVA_SOURCE_DIR));
    QVector<Source> found;
    QDirIterator files(root.path(), {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error(file.fileName().toStdString());
        found.append({root.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll())});
    }
    return found;
}

QString layerOf(QString const & path)
{
    return path.section(QLatin1Char('/'), 0, 0);
}

QStringList includesOf(Source const & source)
{
    static QRegularExpression const line(QStringLiteral("^\\s*#\\s*include\\s*\"([^\"]+)\""),
                                         QRegularExpression::MultilineOption);
    QStringList included;
    for (auto match = line.globalMatch(source.text); match.hasNext();)
        included.append(match.next().captured(1));
    return included;
}

bool pointsDown(QString const & file, QString const & included)
{
    int const from = static_cast<int>(layers.indexOf(layerOf(file)));
    int const to = static_cast<int>(layers.indexOf(layerOf(included)));
    return from >= 0 && to >= 0 && (to <= from || isThePairThatMeets(file, included));
}

bool holdsSql(QString const & text)
{
    static QRegularExpression const statement(
        QStringLiteral("\"[^\"\\n]*\\b(SELECT|INSERT|UPDATE|DELETE|CREATE|PRAGMA)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return statement.match(text).hasMatch();
}

bool mayHoldSql(QString const & file)
{
    return layerOf(file) == QLatin1String("cache") || file == QLatin1String("facade/speakerDspStore.cpp");
}

} // namespace

TEST(Layers, ArrowsRunDown)
{
    QVector<Source> const all = sources();
    ASSERT_GT(all.size(), 20);
    for (Source const & source : all) {
        if (layerOf(source.name) == source.name)
            continue; // the umbrella header stands above the layers
        for (QString const & included : includesOf(source))
            EXPECT_TRUE(pointsDown(source.name, included))
                << source.name.toStdString() << " includes " << included.toStdString();
    }
}

TEST(Layers, SqlStandsInTheCacheOnly)
{
    int placesWithSql = 0;
    for (Source const & source : sources()) {
        bool const sql = holdsSql(source.text);
        placesWithSql += sql ? 1 : 0;
        EXPECT_TRUE(!sql || mayHoldSql(source.name)) << source.name.toStdString() << " holds SQL";
    }
    EXPECT_GT(placesWithSql, 0);
}

TEST(Layers, TheCheckKnowsAnArrowThatPointsUp)
{
    struct Row {
        char const * file;
        char const * included;
        bool down;
    };

    Row const rows[] = {
        {"facade/a.cpp", "cache/b.h", true},     {"facade/a.h", "core/b.h", true},
        {"cache/a.h", "cache/b.h", true},        {"records/a.h", "cache/b.h", false},
        {"core/a.h", "records/b.h", false},      {"cache/a.cpp", "facade/b.h", false},
        {"cache/a.cpp", "deviceinfo/b.h", true}, {"cache/a.h", "deviceinfo/b.h", false},
        {"deviceinfo/a.h", "cache/b.h", true},   {"deviceinfo/a.cpp", "facade/b.h", false},
        {"records/a.h", "elsewhere/b.h", false}, {"records/a.h", "a.h", false},
    };
    for (Row const & row : rows)
        EXPECT_EQ(pointsDown(QLatin1String(row.file), QLatin1String(row.included)), row.down)
            << row.file << " -> " << row.included;
}

TEST(Layers, TheCheckKnowsSql)
{
    EXPECT_TRUE(holdsSql(QStringLiteral("x = \"SELECT a FROM b\";")));
    EXPECT_TRUE(holdsSql(QStringLiteral("x = \"pragma table_info(%1)\";")));
    EXPECT_FALSE(holdsSql(QStringLiteral("/// Selects the rows. SELECT")));
}

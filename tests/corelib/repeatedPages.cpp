#include "repeatedPages.h"

#include "sampleDatabase.h"
#include "support/sqlFile.h"

#include <QByteArray>
#include <QVector>
#include <QtEndian>

#include <algorithm>

namespace kestrova::test {

namespace {

// Of the file format of SQLite.
constexpr int repeatedPageSize = 4096;
constexpr int fileHeaderSize = 100; // in front of the tree in page 1
constexpr int leafHeaderSize = 8;
constexpr int interiorHeaderSize = 12;
constexpr char leafOfATable = 13;
constexpr char interiorOfATable = 5;

template <typename Number>
void put(QByteArray & page, int offset, Number number)
{
    qToBigEndian(number, page.data() + offset);
}

/// An inner page of a table's tree whose children are \a first, and then \a child 400 times. The tree starts
/// at \a start of \a page.
void makeInterior(QByteArray & page, int start, quint32 first, quint32 child)
{
    constexpr int children = 400;
    constexpr int cellSize = 5;
    int cell = repeatedPageSize;
    for (int i = 0; i < children; ++i) {
        cell -= cellSize;
        put<quint32>(page, cell, i == 0 ? first : child);
        page[cell + 4] = 1; // the largest row id of the child
        put<quint16>(page, start + interiorHeaderSize + 2 * i, static_cast<quint16>(cell));
    }
    page[start] = interiorOfATable;
    put<quint16>(page, start + 1, 0);
    put<quint16>(page, start + 3, children);
    put<quint16>(page, start + 5, static_cast<quint16>(cell));
    page[start + 7] = 0;
    put<quint32>(page, start + 8, child);
}

/// Appends seven inner pages above the page \a number, the last page so far, and gives the highest one's.
quint32 appendInteriors(QByteArray & content, quint32 number)
{
    for (int level = 0; level < 7; ++level) {
        QByteArray page(repeatedPageSize, '\0');
        makeInterior(page, 0, number, number);
        content += page;
        ++number;
    }
    return number;
}

void replacePage(QByteArray & content, int number, QByteArray const & page)
{
    content.replace((number - 1) * repeatedPageSize, repeatedPageSize, page);
}

void write(QString const & path, QByteArray & content)
{
    constexpr int pageCountOffset = 28;
    put<quint32>(content, pageCountOffset, static_cast<quint32>(content.size() / repeatedPageSize));
    writeContent(path, content);
}

/// A leaf with those cells of page 1 whose offsets are \a cells.
QByteArray leafLike(QByteArray const & firstPage, QVector<quint16> const & cells)
{
    int const end = fileHeaderSize + leafHeaderSize;
    QByteArray page = QByteArray(end, '\0') + firstPage.mid(end);
    page[0] = leafOfATable;
    put<quint16>(page, 3, static_cast<quint16>(cells.size()));
    put<quint16>(page, 5, *std::min_element(cells.begin(), cells.end()));
    for (int i = 0; i < cells.size(); ++i)
        put<quint16>(page, leafHeaderSize + 2 * i, cells[i]);
    return page;
}

} // namespace

void makeEndlessTable(QString const & path)
{
    makeSqlFile(path, QStringLiteral("CREATE TABLE T (a); INSERT INTO T VALUES (1), (2), (3);"));
    QByteArray content = contentOf(path);
    content += content.mid(repeatedPageSize); // page 2, the table's only one, once more as page 3
    quint32 const highest = appendInteriors(content, 3);
    QByteArray root(repeatedPageSize, '\0');
    makeInterior(root, 0, highest, highest);
    replacePage(content, 2, root);
    write(path, content);
}

void makeEndlessSchema(QString const & path)
{
    makeSqlFile(path, QStringLiteral("CREATE TABLE T (a UNIQUE);"));
    QByteArray content = contentOf(path);
    QByteArray const first = content.left(repeatedPageSize);
    auto const cell = [&first](int index) {
        int const place = fileHeaderSize + leafHeaderSize + 2 * index;
        return qFromBigEndian<quint16>(first.constData() + place);
    };
    auto const tableAndIndex = static_cast<quint32>(content.size() / repeatedPageSize + 1);
    content += leafLike(first, {cell(0), cell(1)});
    content += leafLike(first, {cell(1)});
    quint32 const highest = appendInteriors(content, tableAndIndex + 1);
    QByteArray root = first.left(fileHeaderSize) + QByteArray(repeatedPageSize - fileHeaderSize, '\0');
    makeInterior(root, fileHeaderSize, tableAndIndex, highest);
    replacePage(content, 1, root);
    write(path, content);
}

} // namespace kestrova::test

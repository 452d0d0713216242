#include "cache/driverCacheTextItemList.h"

#include "cache/databaseAccess.h"
#include "core/qt5Conversions.h"

#include <QVariant>

namespace kestrova::Morvel::Devicelore {

CDriverCacheTextItemList::CDriverCacheTextItemList()
    : language_(QStringLiteral("TextShort_en_US"))
{}

CDriverCacheTextItemList::CDriverCacheTextItemList(CDriverCacheTextItemList const & other) = default;

CDriverCacheTextItemList &
CDriverCacheTextItemList::operator=(CDriverCacheTextItemList const & other) = default;

CDriverCacheTextItemList::~CDriverCacheTextItemList()
{
    clear();
}

QString CDriverCacheTextItemList::language() const
{
    return language_;
}

void CDriverCacheTextItemList::setLanguage(QString const & language)
{
    if (language == language_)
        return;
    language_ = language;
    clear();
}

bool CDriverCacheTextItemList::hasGroup(unsigned int offset, QString const & connection) const
{
    Texts const * const texts = textsOfConnection.value(connection);
    return texts != nullptr && texts->contains(offset);
}

QString CDriverCacheTextItemList::text(unsigned int offset, int value, QString const & connection)
{
    Texts const * texts = textsOfConnection.value(connection);
    if (texts == nullptr || !texts->contains(offset)) {
        textFromDb(offset, connection);
        texts = textsOfConnection.value(connection);
    }
    if (texts == nullptr)
        return QString();
    // The row read last comes first.
    for (auto entry = texts->constFind(offset); entry != texts->constEnd() && entry.key() == offset;
         ++entry) {
        if (entry->first == value)
            return entry->second;
    }
    return QString();
}

int CDriverCacheTextItemList::textList(unsigned int offset, QList<QPair<int, QString>> & list,
                                       QString const & connection) const
{
    Texts const * texts = textsOfConnection.value(connection);
    if (texts == nullptr || !texts->contains(offset)) {
        // A question fills the store, though it is a const operation.
        const_cast<CDriverCacheTextItemList *>(this)->textFromDb(offset, connection);
        texts = textsOfConnection.value(connection);
    }
    if (texts == nullptr)
        return -1;
    list = texts->values(offset);
    return list.isEmpty() ? -1 : static_cast<int>(list.size());
}

void CDriverCacheTextItemList::textFromDb(unsigned int offset, QString const & connection)
{
    QSqlQuery rows = queryRows(openConnection(connection),
                               QStringLiteral("SELECT Value,%1 FROM TextsObjectValues WHERE TextOffset = %2")
                                   .arg(language_, QString::number(offset)));
    if (!rows.isActive())
        return; // the language is no column, for example
    Texts *& texts = textsOfConnection[connection];
    if (texts == nullptr)
        texts = new Texts;
    while (rows.next())
        texts->insert(offset, qMakePair(qt5::toInt(rows.value(0)), qt5::toText(rows.value(1))));
}

void CDriverCacheTextItemList::clear()
{
    qDeleteAll(textsOfConnection);
    textsOfConnection.clear();
}

} // namespace kestrova::Morvel::Devicelore

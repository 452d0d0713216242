#pragma once

#include "records/deviceloreExport.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>

namespace kestrova::Morvel::Devicelore {

/// The names of values, in one language, read group by group at the first question for a group. A group lies
/// in one database under one text offset.
///
/// What is not found is not remembered: each question for a group without rows asks the database again.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheTextItemList {
public:
    /// Empty, in the language "TextShort_en_US".
    CDriverCacheTextItemList();

    /// A copy shares the texts with its source and both would delete them. Copying exists because an exported
    /// class has it; nothing in the library uses it.
    CDriverCacheTextItemList(CDriverCacheTextItemList const & other);
    CDriverCacheTextItemList & operator=(CDriverCacheTextItemList const & other);

    virtual ~CDriverCacheTextItemList();

    /// The name of the table's column that the texts are taken from, which stands in the SQL as it is.
    QString language() const;

    /// Forgets all texts when the language is another one.
    void setLanguage(QString const & language);

    /// Whether the next question for the group is answered without the database.
    bool hasGroup(unsigned int offset, QString const & connection) const;

    /// The text of \a value in the group; of several rows with that value, the last one's. Null when there is
    /// no such group or value; a text that is empty in the database is not null.
    QString text(unsigned int offset, int value, QString const & connection);

    /// Replaces \a list by the group's values and texts, the row read last in front, and gives their number.
    /// -1 when the group has no rows; \a list is empty then, or untouched when nothing could ever be read
    /// from the database.
    int textList(unsigned int offset, QList<QPair<int, QString>> & list, QString const & connection) const;

    /// Reads a group from the database, in addition to what is stored of it.
    void textFromDb(unsigned int offset, QString const & connection);

    /// Forgets all texts. The language stays.
    void clear();

protected:
    using Texts = QMultiHash<unsigned int, QPair<int, QString>>; ///< values and texts by offset

    QString language_;
    QHash<QString, Texts *> textsOfConnection; ///< owns the texts
};

} // namespace kestrova::Morvel::Devicelore

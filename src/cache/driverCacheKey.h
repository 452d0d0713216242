#pragma once

#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QString>

namespace kestrova::Morvel::Devicelore {

class CDeviceChannelInfo;

/// The key under which the cache keeps an object or a filter: a text of the device's GUID, the thing, and,
/// where that matters, a channel qualifier. The text is complete when the constructor ends, and nothing is
/// normalised later: object names that differ in case are different keys.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheKey {
public:
    enum KeyType : qint32 {
        KeyTypeNone = 0,
        KeyTypeName = 1,   ///< an object by its name
        KeyTypeObject = 2, ///< an object by its number
        KeyTypeFilter = 3, ///< a filter
    };

    /// Empty texts, GUID 0, KeyTypeNone.
    CDriverCacheKey();
    CDriverCacheKey(CDriverCacheKey const & other);
    virtual ~CDriverCacheKey();

    CDriverCacheKey & operator=(CDriverCacheKey const & other);

    KeyType type() const { return type_; }

    CDeviceGuid const & guid() const { return guid_; }

    /// The GUID in upper case; empty in a default key. A key that was made from a text keeps that text, even
    /// one that is no GUID.
    QString guidString() const;

    /// The complete text.
    QString const & key() const { return key_; }

    /// The key's own copy of the qualifier; null for a key without one.
    virtual CDeviceChannelInfo * channelInfo() const = 0;

protected:
    explicit CDriverCacheKey(KeyType type);
    CDriverCacheKey(KeyType type, CDeviceGuid const & guid);
    CDriverCacheKey(KeyType type, QString const & guid);

    void initGuidString();

    /// Makes the whole text anew, from parts that are made first where they are empty.
    virtual void initKeyString() = 0;

    /// Makes room for the text: the GUID, "_", and \a rest more characters. Gives the place of the first of
    /// them.
    QChar * beginKeyText(int rest);

    // A subclass that sets the parts makes the text anew by initKeyString(). The text of the GUID is kept
    // as text only where guid_ does not spell it: initGuidString() lets it follow guid_.
    QString guidText; ///< as given to the constructor, in upper case
    QString key_;
    CDeviceGuid guid_;
    KeyType type_;
    bool guidIsSpelled = false; ///< the text of the GUID is what guid_ spells, and not guidText
};

} // namespace kestrova::Morvel::Devicelore

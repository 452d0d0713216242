#pragma once

#include "records/deviceloreExport.h"

#include <QString>

namespace kestrova::Morvel::Devicelore {

/// A filter of a speaker: a row of the table Filters.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheFilterItem {
public:
    /// All numbers 0, texts empty.
    CDriverCacheFilterItem();

    /// With text offset 0.
    CDriverCacheFilterItem(unsigned char filterId, unsigned char filterNumber, unsigned char filterType,
                           QString const & filterName, QString const & stateText, double minValue,
                           double maxValue);
    CDriverCacheFilterItem(CDriverCacheFilterItem const & other);
    CDriverCacheFilterItem(CDriverCacheFilterItem && other) noexcept;
    ~CDriverCacheFilterItem();

    CDriverCacheFilterItem & operator=(CDriverCacheFilterItem const & other);
    CDriverCacheFilterItem & operator=(CDriverCacheFilterItem && other) noexcept;

    unsigned char filterId() const { return filterId_; }

    void setFilterId(unsigned char filterId) { filterId_ = filterId; }

    unsigned char filterNumber() const { return filterNumber_; }

    void setFilterNumber(unsigned char filterNumber) { filterNumber_ = filterNumber; }

    unsigned char filterType() const { return filterType_; }

    void setFilterType(unsigned char filterType) { filterType_ = filterType; }

    QString filterName() const { return filterName_; }

    void setFilterName(QString const & filterName) { filterName_ = filterName; }

    /// As the database has it, unparsed.
    QString stateText() const { return stateText_; }

    void setStateText(QString const & stateText) { stateText_ = stateText; }

    double minValue() const { return minValue_; }

    void setMinValue(double minValue) { minValue_ = minValue; }

    double maxValue() const { return maxValue_; }

    void setMaxValue(double maxValue) { maxValue_ = maxValue; }

    quint32 textOffset() const { return textOffset_; }

    void setTextOffset(quint32 textOffset) { textOffset_ = textOffset; }

protected:
    unsigned char filterId_ = 0;
    unsigned char filterNumber_ = 0;
    unsigned char filterType_ = 0;
    QString filterName_;
    QString stateText_;
    double minValue_ = 0.0;
    double maxValue_ = 0.0;
    quint32 textOffset_ = 0;
};

} // namespace kestrova::Morvel::Devicelore

#pragma once

#include <QString>
#include <QStringList>

#include <random>
#include <vector>

namespace kestrova::test {

/// A world of devices made by chance, and what it looks like in the forms that a database may have.
struct RandomWorld {
    struct Device {
        QString guid;
        QString model;
        int access;
        std::vector<int> objects;  ///< positions in `objects`
        std::vector<int> speakers; ///< positions in `speakers`
    };

    struct Object {
        QString name;
        int box;
        int number;
        double minimum;
        double maximum;
        double step;
        QString format;
        int flags;
        int access;
        QString defaultValue;
        int size;
        int textOffset;
        int classId;
    };

    struct Speaker {
        int id;
        int speakerClass;
        int sortOrder;
        int cablefitCount;
        int wavefoldLevel;
    };

    explicit RandomWorld(unsigned seed);

    std::vector<Device> devices;
    std::vector<Object> objects;
    std::vector<Speaker> speakers;

    QStringList objectNames() const;
    QStringList guids() const;

    enum class Form {
        New,
        Old, ///< no OnoType, no BoxNumber, no Access of the property filters
    };

    /// The statements that make the database of the devices from \a first to \a last. What belongs to no
    /// device is in it all the same, but for the speakers, which only the first database needs.
    QString sql(Form form, std::size_t first, std::size_t last) const;

    QString sql(Form form) const { return sql(form, 0, devices.size()); }

private:
    int chance(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }

    template <typename Value>
    Value oneOf(std::vector<Value> const & values)
    {
        return values.at(static_cast<std::size_t>(chance(0, static_cast<int>(values.size()) - 1)));
    }

    void makeObjects();
    void makeSpeakers();
    void makeDevices();

    std::mt19937 random;
};

} // namespace kestrova::test

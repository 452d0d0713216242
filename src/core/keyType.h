#pragma once

#include <QtGlobal>

namespace kestrova::Solvane {
namespace DataTypes {

/// Text forms of a CKey.
enum KeyType : qint32 {
    KeyTypeProperty = 0, ///< "$P/" and the property name: "$P/Eq_Fg"
};

} // namespace DataTypes

using DataTypes::KeyType;
using DataTypes::KeyTypeProperty;

} // namespace kestrova::Solvane

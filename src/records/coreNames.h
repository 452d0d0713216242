#pragma once

#include "core/deviceGuid.h"
#include "core/deviceKey.h"
#include "core/devicePropertyKey.h"
#include "core/deviceType.h"
#include "core/encryptedDatabase.h"
#include "core/key.h"
#include "core/keyType.h"
#include "core/memoryException.h"
#include "core/propertyBaseKey.h"
#include "core/roundOnStep.h"
#include "core/speakerClass.h"
#include "core/stringHash.h"
#include "core/tharnError.h"
#include "core/versionNumber.h"

/// The core library's names, usable inside the library's namespace without qualification.
namespace kestrova::Morvel::Devicelore {

using Solvane::CDeviceGuid;
using Solvane::CDeviceKey;
using Solvane::CDevicePropertyKey;
using Solvane::CException;
using Solvane::CKey;
using Solvane::CMemoryException;
using Solvane::CPropertyBaseKey;
using Solvane::CSpeakerClass;
using Solvane::CVersionNumber;
using Solvane::DeviceType;
using Solvane::DeviceTypeNone;
using Solvane::KeyType;
using Solvane::KeyTypeProperty;
using Solvane::OpenEncryptedSqliteDatabase;
using Solvane::roundOnStep;
using Solvane::StringToHash;
using Tharnex::TharnError;
using Tharnex::TharnFailed;
using Tharnex::TharnNoError;
using Tharnex::TharnNotAvailable;
using Tharnex::TharnNotFound;

} // namespace kestrova::Morvel::Devicelore

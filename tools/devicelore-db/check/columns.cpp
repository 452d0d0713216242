#include "check/columns.h"

namespace kestrova::authoring {

std::vector<KnownColumn> const & knownColumns()
{
    static std::vector<KnownColumn> const all{
        {"Version", "Major", Reading::Unsigned8, Need::Position, 0},
        {"Version", "Minor", Reading::Unsigned8, Need::Position, 1},
        {"Version", "Bugfix", Reading::Unsigned16, Need::Position, 2},

        {"Guids", "GUID", Reading::Text, Need::Statement},
        {"Guids", "DeviceType", Reading::Text, Need::Statement},
        {"Guids", "Version", Reading::Text, Need::Statement},
        {"Guids", "Access", Reading::Int, Need::Statement},
        {"Guids", "OnoType", Reading::Unsigned8, Need::Optional},

        {"Hardwaretypes", "Type", Reading::Unsigned8, Need::Statement},
        {"Hardwaretypes", "DeviceType", Reading::Text, Need::Statement},

        {"Objects", "id", Reading::Int, Need::Statement},
        {"Objects", "Name", Reading::Text, Need::Row},
        {"Objects", "BoxNumber", Reading::Unsigned16, Need::Optional},
        {"Objects", "ObjectNumber", Reading::Unsigned16, Need::Row},
        {"Objects", "ChannelCount", Reading::Unsigned8, Need::Row},
        {"Objects", "RecordCount", Reading::Unsigned16, Need::Row},
        {"Objects", "Min", Reading::Real, Need::Row},
        {"Objects", "Max", Reading::Real, Need::Row},
        {"Objects", "Step", Reading::Real, Need::Row},
        {"Objects", "Format", Reading::Text, Need::Row},
        {"Objects", "Flags", Reading::Unsigned16, Need::Row},
        {"Objects", "Access", Reading::Unsigned8, Need::Row},
        {"Objects", "DefaultValue", Reading::Text, Need::Row},
        {"Objects", "Size", Reading::Unsigned16, Need::Row},
        {"Objects", "TextOffset", Reading::Unsigned32, Need::Row},
        {"Objects", "Description", Reading::Text, Need::Row},
        {"Objects", "Comment", Reading::Text, Need::Row},
        {"Objects", "ClassId", Reading::Unsigned16, Need::Row},
        {"Objects", "WaitTime", Reading::Unsigned16, Need::Row},
        {"Objects", "WaitStates", Reading::Unsigned16, Need::Row},

        {"guidsandobjects", "objectid", Reading::Int, Need::Statement},
        {"guidsandobjects", "guid", Reading::Text, Need::Statement},

        {"ObjectClasses", "Id", Reading::Int, Need::Statement},
        {"ObjectClasses", "OcaClassId", Reading::Text, Need::Statement},
        {"ObjectClasses", "Description", Reading::Text, Need::Statement},

        {"SpeakerClasses", "Class", Reading::Unsigned8, Need::Statement},
        {"SpeakerClasses", "Name", Reading::Text, Need::Statement},
        {"SpeakerClasses", "Type", Reading::Text, Need::Statement},
        {"SpeakerClasses", "Ways", Reading::Unsigned8, Need::Statement},
        {"SpeakerClasses", "WayNames", Reading::Text, Need::Statement},

        {"Speakers", "SpeakerId", Reading::Unsigned16, Need::Statement},
        {"Speakers", "Name", Reading::Text, Need::Statement},
        {"Speakers", "Class", Reading::Unsigned8, Need::Statement},
        {"Speakers", "Rib", Reading::Int, Need::Statement},
        {"Speakers", "DisplayNameShort", Reading::Text, Need::Statement},
        {"Speakers", "SortOrder", Reading::Int, Need::Statement},
        {"Speakers", "CablefitMaxCount", Reading::Int, Need::Statement},
        {"Speakers", "WfActive", Reading::Int, Need::Statement},

        {"GuidsSpeakersFilters", "GUID", Reading::Text, Need::Statement},
        {"GuidsSpeakersFilters", "SpeakerId", Reading::Unsigned16, Need::Statement},
        {"GuidsSpeakersFilters", "FilterId", Reading::FilterNumber, Need::Statement},
        {"GuidsSpeakersFilters", "Access", Reading::Int, Need::Statement},

        {"Filters", "Id", Reading::FilterKey, Need::Statement},
        {"Filters", "Number", Reading::Unsigned8, Need::Statement},
        {"Filters", "Type", Reading::Unsigned8, Need::Statement},
        {"Filters", "Min", Reading::Int, Need::Statement},
        {"Filters", "Max", Reading::Int, Need::Statement},
        {"Filters", "DisplayNameShort", Reading::Text, Need::Statement},
        {"Filters", "TextOffset", Reading::Unsigned32, Need::Statement},
        {"Filters", "StateTexts", Reading::Text, Need::Statement},

        {"TextsObjectValues", "TextOffset", Reading::Int, Need::Statement},
        {"TextsObjectValues", "Value", Reading::Int, Need::Statement},

        {"DevicePropertyFilter", "FilterName", Reading::Text, Need::Statement},
        {"DevicePropertyFilter", "Expression", Reading::Text, Need::Statement},
        {"DevicePropertyFilter", "Access", Reading::Unsigned8, Need::Probed},

        {"SpeakerData", "GUID", Reading::Text, Need::Statement},
        {"SpeakerData", "SpeakerId", Reading::Unsigned16, Need::Statement},
        {"SpeakerData", "DeviceType", Reading::Text, Need::Statement},
        {"SpeakerData", "SpeakerName", Reading::Text, Need::Statement},
        {"SpeakerData", "SpeakerVersion", Reading::Text, Need::Statement},
        {"SpeakerData", "BlobData", Reading::Bytes, Need::Statement},
        {"SpeakerData", "BlobDataMD5", Reading::Text, Need::Statement},
    };
    return all;
}

std::vector<KnownIndex> const & knownIndexes()
{
    static std::vector<KnownIndex> const all{
        {"Objects", {"Name"}, "ObjectsByName"},
        {"Objects", {"ObjectNumber", "BoxNumber"}, "ObjectsByNumber"},
        {"guidsandobjects", {"objectid", "guid"}, "GuidsAndObjectsByObject"},
        {"TextsObjectValues", {"TextOffset"}, "TextsObjectValuesByOffset"},
        {"GuidsSpeakersFilters", {"GUID", "SpeakerId"}, "GuidsSpeakersFiltersByGuid"},
        {"Filters", {"Id"}, "FiltersById"},
        {"SpeakerData", {"GUID", "SpeakerId"}, "SpeakerDataByGuid"},
    };
    return all;
}

} // namespace kestrova::authoring

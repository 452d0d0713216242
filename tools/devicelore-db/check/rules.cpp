#include "check/rules.h"

#include <algorithm>
#include <cstring>

namespace kestrova::authoring {

namespace {

constexpr auto Error = Severity::Error;
constexpr auto Warning = Severity::Warning;
constexpr auto Hint = Severity::Hint;

} // namespace

std::vector<Rule> const & rules()
{
    static std::vector<Rule> const all{
        {"class-cut", Error, "an object class has a number above 255",
         "the number is cut to its low byte: objects of the class do not find it, others may",
         "give the class a number from 1 to 255"},
        {"class-missing", Error, "an object refers to an object class that no database has",
         "the object has no OCA class", "add the class to ObjectClasses, or set ClassId to 0"},
        {"class-not-listed", Warning,
         "a speaker class has as many ways as no row of the library's list of classes is for",
         "classes 0, 1, 2, 9 and 10 are offered to single channels only, all others to pairs only; speakers "
         "of this class are offered where they do not fit",
         "give the class a number of the other kind, or correct Ways"},
        {"class-twice", Warning, "an object class is defined more than once",
         "the first row of the first database counts, the others never do",
         "delete the rows that do not count, or make them equal"},
        {"class-zero", Hint, "an object class has the number 0", "the row is skipped: 0 stands for no class",
         "give the class a number from 1 to 255, or delete the row"},
        {"column-case", Error, "a column is spelled in another case than the library looks for",
         "the library compares the names of these columns exactly, so the column counts as absent",
         "rename the column"},
        {"column-missing", Error, "a table lacks a column that the library's statement names",
         "the statement fails, and the whole table counts as empty", "add the column"},
        {"damaged-table", Error, "a table cannot be read to its end",
         "the rows up to the damage count, the others do not exist",
         "make the database anew from its source; `devicelore-db info` tells more"},
        {"default-missing", Hint, "a number has no default value",
         "the default is 0 if 0 lies in the range, else the minimum", "write the default that is meant"},
        {"default-not-a-number", Warning, "the default value of a number is no number",
         "the default is 0 if 0 lies in the range, else the minimum", "write the default that is meant"},
        {"default-off-grid", Warning, "a default value does not lie on the grid of the steps",
         "the default is given as it stands; once a user changes the value it can never be set again",
         "choose a multiple of the step, or another step"},
        {"default-out-of-range", Warning,
         "a default value lies outside the range, or a default text is longer than its object",
         "the default is given as it stands, although it is not legal",
         "correct the default, the range or Size"},
        {"default-speaker", Warning,
         "the speaker that a model takes by default in an output mode is not one that the device supports",
         "applications show a speaker that cannot be chosen",
         "add the speaker to GuidsSpeakersFilters for this device"},
        {"device-twice", Error, "a GUID stands twice in one database",
         "the first row counts, the other is dropped", "delete the row that does not count"},
        {"device-without-objects", Warning, "a device has no objects",
         "every question for an object of the device is answered with \"not available\"",
         "link its objects in guidsandobjects, or delete the device"},
        {"dsp-incomplete", Error, "a row of the DSP data lacks something",
         "the data of the speaker count as not valid", "fill in the column"},
        {"dsp-md5", Error, "the DSP data do not have the MD5 that stands beside them",
         "nothing: the library carries the MD5 along and does not compare it",
         "put the right data, or the right MD5, into the row"},
        {"dsp-twice", Warning, "the DSP data of a device and speaker stand twice",
         "the first row counts, the other never does", "delete the row that does not count"},
        {"dsp-unknown-device", Hint, "there are DSP data for a device that no database describes",
         "the data are found by whoever asks for that very GUID", "correct the GUID, or delete the row"},
        {"dsp-unknown-speaker", Hint, "there are DSP data for a speaker that no database defines",
         "the data are found by whoever asks for that very id", "correct the speaker id, or delete the row"},
        {"filter-fraction", Warning, "a limit of a filter has a fraction", "the limit is rounded",
         "write whole numbers"},
        {"filter-limits", Error, "the minimum of a filter is above its maximum",
         "the filter's object gets these limits, and no value is legal", "correct the limits"},
        {"filter-missing", Error, "a device's speaker has a filter that the table Filters does not have",
         "this database has no such filter; the next one is asked", "add the filter to Filters"},
        {"filter-negative", Error, "a filter has a negative number",
         "the row is taken for slot 0 and then leads nowhere; the next database is asked",
         "write ten times the slot, and a variant from 0 to 9"},
        {"filter-row-twice", Warning, "a filter is defined twice",
         "the first row counts, the other never does", "delete the row that does not count"},
        {"filter-slot-twice", Warning, "a slot of a device's speaker has two filters",
         "the row that is read first counts, the other never does", "delete the row that does not count"},
        {"filter-unused", Hint, "no device has this filter", "nothing: it is never asked for",
         "delete the filter, or use it in GuidsSpeakersFilters"},
        {"format-not-latin1", Warning, "a format has a character that Latin-1 does not have",
         "the character is read as a question mark", "write it with characters of Latin-1"},
        {"format-size", Error,
         "the format reads another number of bytes than the object has, or is wider than its text",
         "with more bytes than there are nothing can be printed; with fewer, the value is cut; a text is "
         "filled up with blanks to the width, and cut to Size when it is set",
         "correct Size, or the size or width in the format"},
        {"format-step", Warning, "the format has too few decimals for the step",
         "values that differ by a step look alike, and come back as others",
         "give the format more decimals, or choose a larger step"},
        {"format-unparsable", Error, "the format has no conversion",
         "the object is of unknown type: it is not converted, not checked, and has no kind of control",
         "write a format; docs/format-language.md tells how"},
        {"format-width", Hint, "the format is too narrow for the range",
         "longer values are printed in full, and columns do not line up", "widen the format"},
        {"format-without-size", Error, "the format says no size", "no value can be printed or set",
         "write a conversion that the library knows; docs/format-language.md "
         "lists them"},
        {"group-faulty", Error, "the statement of a property group fails",
         "the group exists and is empty, or keeps what other databases gave it",
         "write one statement that can be run"},
        {"group-level", Hint, "a property group is for level 0", "every caller sees it",
         "say from which level on it is meant to be seen"},
        {"group-name", Warning, "a property group holds a name that no object has",
         "applications get the name and find nothing under it", "correct the statement of the group"},
        {"group-twice", Hint, "a property group holds a name twice",
         "applications get the name twice, if the group is the first of its name",
         "write SELECT DISTINCT, or correct the statement"},
        {"guid-prefix", Error, "a GUID does not begin with C7", "the row is not read", "correct the GUID"},
        {"guid-text", Error, "a GUID is not written as eight hexadecimal digits in upper case",
         "a text that is no number leaves no device; in other tables a GUID is compared as text, and found "
         "in "
         "upper case only",
         "write it with eight digits, in upper case"},
        {"guid-type", Error, "a GUID has a device type that no device has",
         "the row is skipped: types 0 to 3 and 160 are no devices", "correct the last two digits"},
        {"hardware-twice", Hint, "a hardware type is told more than once",
         "the last row of the last database counts, the others never do",
         "delete the rows that do not count"},
        {"hardware-unknown", Warning, "a hardware type belongs to a model that no database describes",
         "the hardware has a name, and no device", "correct DeviceType, or describe the model"},
        {"index-missing", Warning, "an index for the library's statements is missing",
         "every first question for an object, a speaker, a filter or a text reads the whole table",
         "run the statement that is shown; an index on an expression, of a part of the rows or with another "
         "collation does not serve them"},
        {"level-hides-type", Hint, "all descriptions of a device type need a level above 1",
         "at the level 1, at which applications start, devices of the type are unknown",
         "nothing, if that is meant"},
        {"link-missing-object", Error, "a device is linked to an object that is not there",
         "nothing is found", "delete the link, or add the object"},
        {"link-twice", Hint, "a device is linked to an object twice", "nothing: one row is enough",
         "delete one of them"},
        {"link-unknown-device", Warning, "something belongs to a GUID that this database does not supply",
         "it is never asked for: a device takes its objects and speakers from the first database that holds "
         "it, "
         "by a GUID in upper case",
         "correct the GUID, or delete the row"},
        {"model-unknown", Warning, "the library has no model of this name",
         "the device has no channel counts, no default speakers and no default values of its own",
         "correct DeviceType: names are compared exactly"},
        {"name-case", Hint, "a table or column is spelled in another case than usual",
         "nothing: SQL does not look at the case here", "rename it, so that others find it"},
        {"not-a-database", Error, "a file cannot be opened",
         "an application beside it gets none of its databases, as one that does not open closes all",
         "replace or remove the file"},
        {"not-a-number", Error, "a column of numbers holds something else", "it is read as 0",
         "write a number"},
        {"null-value", Hint, "a column of numbers holds nothing", "it is read as 0", "write a number"},
        {"number-cut", Error, "a number is larger than the library reads", "only the low bits are taken",
         "write a number that fits"},
        {"number-fraction", Warning, "a column of whole numbers holds a fraction", "it is rounded",
         "write a whole number"},
        {"object-address", Error, "the address of an object does not fit",
         "box numbers have five bits and object numbers eight, and the bits above hold the channel: the "
         "object "
         "is not found by its number, or another one is",
         "give the object a box up to 31 and a number up to 255"},
        {"object-column-missing", Warning, "the table Objects lacks a column",
         "the member is 0 or empty for every object", "add the column"},
        {"object-id-twice", Warning, "two objects have one id",
         "a device that is linked to the id has both objects", "give each object an id of its own"},
        {"object-name-twice", Error, "a device has two objects of one name",
         "by name only the first row is ever found", "rename one, or link only one of them"},
        {"object-number-twice", Error, "a device has two objects of one number",
         "by number only the first row is ever found", "renumber one, or link only one of them"},
        {"object-unlinked", Warning, "an object belongs to no device", "it is never found",
         "link it in guidsandobjects, or delete it"},
        {"oca-class", Error, "an OCA class is not written as up to 16 numbers with points between them",
         "a part that is no number up to 65535 is read as 0, and parts behind the 16th are lost",
         "write it like 1.2.5"},
        {"older-description", Error, "a GUID is described by an earlier database already",
         "this row and all that belongs to it is never seen",
         "delete it here or there; a new version of a description takes a new version byte"},
        {"range-inverted", Error, "the minimum of an object is above its maximum",
         "every value is corrected to the one or the other", "correct the range"},
        {"range-size", Error, "the range of an object does not fit its bytes",
         "values at its ends are cut, or come back as others", "correct the range, or take more bytes"},
        {"reserved-bits", Warning,
         "two descriptions of a device type have one version and differ in the second byte",
         "the one that is read first is the newest of the two, and the last of the type decides under which "
         "version-0 row the model is looked for",
         "give them different versions"},
        {"round-trip", Warning, "a legal value changes on its way from the device to the user and back",
         "an application that writes back what it has read changes the device's value",
         "take a larger or a signed conversion, or more decimals"},
        {"same-low-byte", Warning, "two speakers have ids that agree in the low byte",
         "they share their definitions: lists and questions for the one give the other, whichever is read "
         "last",
         "choose another id, unless they are the ways of one speaker"},
        {"speaker-class-twice", Warning, "a speaker class is defined more than once",
         "the first row of the first database counts, the others never do",
         "delete the rows that do not count, or make them equal"},
        {"speaker-class-unknown", Warning,
         "a speaker is of a class that neither this database nor an earlier one has",
         "the speaker has no class: it is offered to pairs of channels in mode 2 only, and has no ways",
         "add the class to SpeakerClasses of this database"},
        {"speaker-missing", Error, "a device supports a speaker that no database defines",
         "the speaker is left out of all lists", "add the speaker to Speakers, or delete the row"},
        {"speaker-redefined", Warning, "a speaker is defined twice, and differently",
         "both stay; the one that is read last stands in front, for all devices", "keep one definition"},
        {"statistics-missing", Hint, "the database has no statistics",
         "SQLite may choose an index that is slower",
         "encrypt with `devicelore-db encrypt`, which adds them, or run ANALYZE before"},
        {"step-not-positive", Error, "the step of a number is 0 or below", "values are not rounded",
         "write the step that is meant"},
        {"step-too-large", Warning, "the step of a number is larger than its range",
         "nearly every value is rounded out of the range", "correct the step or the range"},
        {"text-missing", Warning, "a value has no text in one of the languages",
         "in that language the text is empty", "translate it"},
        {"text-out-of-range", Warning, "there is a text for a value that no object of the group can have",
         "lists of choices offer it, and whoever chooses it gets another",
         "correct the range of the object, or delete the text"},
        {"text-twice", Warning, "a value has two texts", "the row that is read last counts; lists hold both",
         "delete the row that does not count"},
        {"texts-language", Warning, "the texts lack the column TextShort_en_US",
         "in the language that applications start with there are no texts", "add the column"},
        {"texts-missing", Error, "an object or a filter has a group of texts that is not there",
         "a choice or readout without texts: they are looked for in the database of the device",
         "add the texts, or set TextOffset to 0"},
        {"texts-offset", Hint, "an object has the group of texts 1, which stands for none",
         "the texts are found by whoever asks for them, and the kind of control is that of a value without "
         "texts",
         "number the group from 2 on"},
        {"texts-unused", Hint, "nothing refers to this group of texts", "nothing: it is never asked for",
         "delete the group, or set a TextOffset"},
        {"type-two-models", Warning, "descriptions of one device type name different models",
         "the model is that of the version-0 row, for all of them", "write one name, or take another type"},
        {"unit-point", Warning, "the unit of a format has a point, which hides the decimals of the format",
         "applications take the digits behind the last point of the whole format for its decimals",
         "write the unit without a point"},
        {"value-text-missing", Warning, "a value of an object with texts has no text",
         "lists of choices do not offer the value, and it is shown as nothing",
         "add the text, or correct the range"},
        {"values-unchecked", Hint, "the values of an object are never checked",
         "any value passes: only numbers, switches and texts have a range", "nothing, if that is meant"},
        {"values-unconverted", Warning, "the values of an object are never converted",
         "conversions hand over four bytes; larger values, single characters and reserved formats cannot be "
         "read and set",
         "take a conversion of at most four bytes"},
        {"version-0-missing", Warning, "a device type has no description of version 0",
         "its devices have no model by GUID, and so no channel counts and no defaults",
         "add a row with the version byte 0, with the second byte of the type's last row"},
    };
    return all;
}

Rule const * findRule(char const * name)
{
    auto const found = std::find_if(rules().begin(), rules().end(),
                                    [&](Rule const & rule) { return std::strcmp(rule.name, name) == 0; });
    return found == rules().end() ? nullptr : &*found;
}

char const * severityName(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Hint:
        return "hint";
    }
    return "";
}

} // namespace kestrova::authoring

// The small records that every capability file shares: a setting's flags, value, range and allowed values, a text in
// two languages, a storage place.
#ifndef LCDMAINCONFIG_COMMON_H
#define LCDMAINCONFIG_COMMON_H

#include <string>
#include <vector>

/// The records and interfaces of the configuration model. A record is a plain value, copied whole; its member
/// initialisers hold wherever a reader leaves a member alone.
namespace LCD::MainConfig {

/// Whether a feature exists and may be changed. Every other shape of a setting starts with it.
struct s_SupportInfo {
    int support = 0;   ///< Non-zero: the device has the feature. Attribute "Support".
    int editable = -1; ///< Non-zero: the user may change it; -1: no file said so. Attribute "Editable".
    /// The panel's number for the kind of genlock support: attribute "SupportType" of the feature file's "Genlock"; 2
    /// in every other record. No query reads it.
    int attrMode = 2;
};

/// A setting with one value.
struct s_BaseAttr : s_SupportInfo {
    int value = 0; ///< Factory value, in the setting's own unit or numbering. Attribute "Value".
    /// How the panel shows the value; the number is the panel's and never interpreted here. Attribute "DataType".
    int dataType = 0;
};

/// A setting with a range. Nothing checks the value against it.
struct s_RangeValue : s_BaseAttr {
    int min = 0;   ///< Smallest value that can be set. Attribute "Min".
    int max = 255; ///< Largest value that can be set. Attribute "Max".
    /// Distance between two values that can be set; 0: the file gives none. Attribute "Step", a whole number in most
    /// files.
    double step = 0.0;
    /// Factor from the stored integer to the shown value. Attribute "Coefficient"; 1 in elements that have none in
    /// their format.
    double coefficient = 1.0;
};

/// One allowed value of an enumeration: the attribute "Value" of an "Enum" child.
struct EnumValue {
    int value = 0; ///< The allowed value, in the numbering of the setting that lists it. Attribute "Value".
};

/// One allowed value of an enumeration in the connector and subcard files.
struct ConnectorEnumValue {
    int value = 0; ///< The allowed value, in the numbering of the setting that lists it. Attribute "Value".
};

/// A setting with a list of allowed values.
struct s_EnumField : s_BaseAttr {
    std::vector<EnumValue> enums; ///< Allowed values, in file order with duplicates; empty: the file lists none.
};

/// A text with its limits.
struct s_TextValue : s_SupportInfo {
    std::string value; ///< Factory text, UTF-8; a number is kept as its text. Attribute "Value".
    /// How the panel shows the text; the number is the panel's and never interpreted here. Attribute "DataType".
    int dataType = 0;
    int min = 0;   ///< Fewest characters that the text may have. Attribute "Min".
    int max = 255; ///< Most characters that the text may have. Attribute "Max".
};

/// One allowed value with a text; no file fills any.
struct s_EnumStringValue {
    int value = 0;    ///< The allowed value, in the numbering of the setting that lists it.
    std::string name; ///< What the value is called, UTF-8.
};

/// A text in the two languages of the panel, UTF-8.
struct s_Name {
    std::string en;   ///< English text; element or attribute "en". Empty: the file gives none.
    std::string zhCN; ///< Chinese text; element or attribute "zh_CN". Empty: the file gives none.
};

/// A short text in the two languages of the panel, UTF-8.
struct s_ShortName {
    std::string en;   ///< English text; element "en". Empty: the file gives none.
    std::string zhCN; ///< Chinese text; element "zh_CN". Empty: the file gives none.
};

/// A storage place, UTF-8; which of the two ways to name it counts is the panel's choice.
struct s_Path {
    /// Path relative to the storage that the panel has at hand. Attribute "RelativePath"; empty: none is given.
    std::string relativePath;
    /// Path from the root of the device's file system. Attribute "AbsolutePath"; empty: none is given.
    std::string absolutePath;
};

/// The storage places that have a relative path. The underlying type is fixed, so that a number from elsewhere can be
/// carried here and refused by the query that takes it.
enum class RelativePathType : int {
    Stream = 0,  ///< Streams that are pushed: the target path that contains "stream".
    Record = 1,  ///< Recordings: the target path that contains "record".
    Project = 2, ///< Project files: the target path that contains "project".
    Media = 3,   ///< The media pool: the target path that contains "media".
    Camera = 4,  ///< What belongs to cameras: the target path that contains "camera".
    Logs = 5     ///< Log files: the target path that contains "logs".
};

} // namespace LCD::MainConfig

#endif

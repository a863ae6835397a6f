// The small records that every capability file shares: a setting's flags, value, range and allowed values, a text in
// two languages, a storage place; and the names under which components look each other up.
#ifndef LCDMAINCONFIG_COMMON_H
#define LCDMAINCONFIG_COMMON_H

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// Whether a feature exists and may be changed.
struct s_SupportInfo {
    int support = 0;   ///< Attribute "Support"; non-zero: the device has the feature.
    int editable = -1; ///< Attribute "Editable"; non-zero: the user may change it.
    int attrMode = 2;  ///< Attribute "SupportType" of the feature file's "Genlock" alone; 2 in every other record.
};

/// A setting with one value.
struct s_BaseAttr : s_SupportInfo {
    int value = 0;    ///< Attribute "Value".
    int dataType = 0; ///< Attribute "DataType": how the panel shows the value; never interpreted here.
};

/// A setting with a range. Nothing checks the value against it.
struct s_RangeValue : s_BaseAttr {
    int min = 0;              ///< Attribute "Min".
    int max = 255;            ///< Attribute "Max".
    double step = 0.0;        ///< Attribute "Step"; a whole number in most files.
    double coefficient = 1.0; ///< Attribute "Coefficient": scale between the stored integer and the shown value.
};

/// One allowed value of an enumeration: the attribute "Value" of an "Enum" child.
struct EnumValue {
    int value = 0;
};

/// One allowed value of an enumeration in the connector and subcard files.
struct ConnectorEnumValue {
    int value = 0;
};

/// A setting with a list of allowed values.
struct s_EnumField : s_BaseAttr {
    std::vector<EnumValue> enums; ///< Allowed values in file order, duplicates kept.
};

/// A text with its limits.
struct s_TextValue : s_SupportInfo {
    std::string value; ///< UTF-8; a number is kept as its text.
    int dataType = 0;  ///< How the panel shows the value; never interpreted here.
    int min = 0;
    int max = 255;
};

/// One allowed value with a text.
struct s_EnumStringValue {
    int value = 0;
    std::string name; ///< UTF-8.
};

/// A text in the two languages of the panel, UTF-8.
struct s_Name {
    std::string en;
    std::string zhCN;
};

/// A short text in the two languages of the panel, UTF-8.
struct s_ShortName {
    std::string en;
    std::string zhCN;
};

/// A storage place.
struct s_Path {
    std::string relativePath; ///< Attribute "RelativePath".
    std::string absolutePath; ///< Attribute "AbsolutePath".
};

/// The storage places that have a relative path. The underlying type is fixed, so that a number from elsewhere can be
/// carried here and refused by the query that takes it.
enum class RelativePathType : int { Stream = 0, Record = 1, Project = 2, Media = 3, Camera = 4, Logs = 5 };

namespace constants {
/// Interface names under which the host hands out components; not the component ids.
inline constexpr char OBJ_DEVICECONFIG_NAME[] = "lcdDeviceConfig";
inline constexpr char OBJ_SUBCARDCONFIG_NAME[] = "lcdSubcardConfig";
} // namespace constants

} // namespace LCD::MainConfig

#endif

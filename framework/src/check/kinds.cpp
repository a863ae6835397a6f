// The table of all kinds of findings. What the checker says about a kind as such, on the command line, in a report or
// on a page, is worded here and nowhere else.
#include "finding.h"

#include <algorithm>

namespace lcdcheck {
namespace {

using enum Severity;

const std::vector<Kind>& table()
{
    static const std::vector<Kind> all{
        // ---- Something is lost ----
        {"not-well-formed", Error, "the text is no XML",
         "The panel's parser refuses the whole file, so that nothing in it is read. A card or connector file that is "
         "refused also ends the load of all that come after it.",
         "Mend the place that is shown; where a tag is not closed, the message says where it was opened.",
         R"(<Name>
  <en>4x HDMI 2.0 input card</en>
  <zh_CN>4路HDMI 2.0输入卡
</Name>                          <!-- "zh_CN" is still open -->)"},
        {"wrong-root", Error, "the outermost element is not the one that this file must have",
         "Files of devices, cards and connectors have the root \"DCS\", files of the panel have \"LCD\". A file with "
         "another root is not read, and a card, connector or key-check file with one ends the load of those after it.",
         "Name the root as the message says, or move the file to the folder that it belongs to.",
         R"(<LCD version="1.0">              <!-- in a card file -->
  <Subcards>)"},
        {"wrong-version", Error, "the version is not 1.0",
         "A root with a version other than 1.0 is not read. A root without a version is.",
         "Write version=\"1.0\", or leave the attribute out.", R"(<DCS version="1.1">)"},
        {"cannot-read", Error, "a file or folder is missing or may not be read",
         "The panel gets nothing from it. Some folders would be created when they are missing, empty ones.",
         "Create the folder, or give the right to read. A folder or pipe in the place of a file is to be replaced.",
         R"(halcyon/subcards/inputs/201.xml  (mode 0200))"},
        {"missing-element", Error, "a required element is not there",
         "The reader stops at an element that it can't do without. What is lost by that depends on the place, from one "
         "entry of a list to all files that follow; the finding tells the cost.",
         "Put the element in. Empty is enough for many: their attributes have defaults.",
         R"(<Connector Type="2">
  <Name><en>HDMI 1.4</en><zh_CN>HDMI 1.4</zh_CN></Name>
  <SignalType Value="1"/>        <!-- no "ShortName": the connector is dropped -->)"},
        {"missing-file", Error, "a file that the panel needs is not there",
         "A device without a feature file has no features, a device without a slot file takes no card, and a panel "
         "without a menu file shows no menu. Files of a device are told by what their names contain.",
         "Add the file, or rename it so that its name says what it is.",
         R"(devices/halcyon16/slot.xml
devices/halcyon16/faeture.xml    (not told as the feature file))"},

        // ---- Names: the author means something else than the panel will read ----
        {"unknown-attribute", Warning, "an attribute that nobody asks for",
         "No reader looks at an attribute of this name here, so that its value has no effect. What it was meant to set "
         "keeps its default.",
         "Correct the name (capitals count), or take the attribute away. A few names of the formats are misspelled "
         "themselves and must stay so.",
         R"(<HDCP Suport="1" Editable="1"/>  <!-- meant: Support -->)"},
        {"unknown-element", Warning, "an element that nobody asks for",
         "No reader looks for an element of this tag here. It is passed over with all that it holds.",
         "Correct the tag (capitals count), or move the element below the one where it is looked for.",
         R"(<PhysicalSize>
  <Hight Support="1" Min="1" Max="20000"/>  <!-- meant: Height -->)"},
        {"unexpected-tag", Warning, "a list takes an element of another tag for an entry",
         "Many lists take every element, or every one behind their first entry, whatever its tag. This one becomes an "
         "entry that the author did not mean, with defaults where it has no attributes for it.",
         "Correct the tag, or move the element out of the list, in front of its first entry.",
         R"(<Slot Index="2"/>
<Subcards/>                      <!-- becomes a slot -->)"},
        {"duplicate-attribute", Warning, "an attribute is given twice",
         "XML forbids it. The panel's parser keeps the last one and drops the others without a word.",
         "Leave the attribute that is meant.", R"(<Offset Min="0" Max="100" Min="10"/>  <!-- Min is 10 -->)"},
        {"duplicate-element", Warning, "an element is given twice where one counts",
         "Only the first element of this tag is read here. The others have no effect.",
         "Leave the element that is meant.",
         R"(<Width Min="640" Max="1920"/>
<Width Min="640" Max="4096"/>    <!-- not read -->)"},
        {"unknown-key", Warning, "an entry of an ini file that nobody asks for",
         "The panel never asks for this key, so that its value has no effect. The key it was meant for reads as 0 or "
         "as "
         "an empty text.",
         "Correct the key or the section it stands in. Some names of the format are misspelled themselves.",
         R"([LightColorSetting]
LightColour=3                    ; meant: LightColor)"},

        // ---- Values ----
        {"not-a-number", Warning, "a text stands where a number is read",
         "A text that is no number of the wanted kind is stored as 0, without a message. Letters, an empty text, a "
         "fraction for a whole number, hexadecimal digits and a number too large for its field are such texts.",
         "Write a decimal number of the kind that the message names.",
         R"(<Width Value="1920px" Min="0x280" Max="4096.0"/>  <!-- 0, 0 and 0 -->)"},
        {"bad-encoding", Warning, "bytes that are no characters of the file's encoding",
         "The parser puts a replacement in their place, so that names show boxes or question marks on the panel.",
         "Save the file in the encoding that its first line names; UTF-8 is the usual one.",
         R"(<?xml version="1.0" encoding="UTF-8"?>
<zh_CN>\xB7\xAD\xB4\xE4</zh_CN>  <!-- bytes of GBK -->)"},
        {"value-out-of-range", Warning, "a value lies outside its own limits",
         "\"Value\" is the value from the factory, \"Min\" and \"Max\" limit what the user may choose. The panel "
         "starts "
         "with a value that the user can't choose again.",
         "Correct the value, or widen the limits.", R"(<Opacity Value="120" Min="0" Max="100"/>)"},
        {"empty-range", Warning, "the lower limit lies above the upper one",
         "No value satisfies both limits. Often one of them is missing and counts as its default.",
         "Exchange the limits, or give the one that is missing.", R"(<AddTime Min="1920" Max="640"/>)"},
        {"value-not-in-list", Warning, "a value that its own list does not offer",
         "The value from the factory is none of the element's allowed values. The panel starts with a value that the "
         "user can't choose.",
         "Add the value to the list, or choose one of it.",
         R"(<Type Value="4">
  <Enum Value="0"/>
  <Enum Value="1"/>
</Type>)"},
        {"duplicate-value", Warning, "a list offers the same value twice",
         "Lists keep their duplicates, so that the user is offered one value twice. Often the second was meant to be "
         "another.",
         "Take the second one away, or correct it.",
         R"(<Enum Value="8"/>
<Enum Value="10"/>
<Enum Value="10"/>               <!-- meant: 12 -->)"},

        // ---- Identity ----
        {"duplicate-identifier", Warning, "two things have one identifier",
         "Cards are found by model, screens, layers and connectors by type, slots by index, connectors of a card by "
         "position, menu items and keys by key. Of two with one identifier, queries find one; the finding tells which.",
         "Give each its own identifier, or take one away.",
         R"(<Connector Type="1" Position="3"/>
<Connector Type="1" Position="3"/>  <!-- meant: 4 -->)"},

        // ---- References ----
        {"missing-card", Warning, "a slot lists a card model that no card file has",
         "The slot takes a card that the catalogue does not know. The panel shows it without name and connectors.",
         "Add the card's file, named by its model, or correct \"ModuleId\".",
         R"(<Slot Index="2">
  <Subcards><Subcard ModuleId="209"/></Subcards>  <!-- no subcards/209.xml -->)"},
        {"missing-connector-type", Warning, "a card has a connector of a type that no connector file describes",
         "The connector's name, signals and resolutions are unknown to the panel.",
         "Add the connector's file, named by its type, or correct \"Type\".",
         R"(<Connector Type="17" Position="1"/>  <!-- no connectors/17.xml -->)"},
        {"missing-layer-type", Warning, "a screen has layers of a type that no layer file describes",
         "The panel knows how many such layers a screen may hold, but nothing of what can be set on them.",
         "Add the layer file, or correct \"Value\" of the layer type.",
         R"(<LayerType Value="7">            <!-- no <Layer Type="7"> -->)"},
        {"missing-slot", Warning, "a slot is referred to that the slot file does not have",
         "What refers to it points to nothing: a screen's cell stays without output, a source without signal.",
         "Correct the slot's number, or add the slot to the slot file.",
         R"(<Cell SlotIndex="70" ConnectorIndex="1"/>  <!-- meant: 7 -->)"},
        {"missing-connector", Warning, "a connector is referred to that no card of the slot has",
         "The slot is there, but none of the cards that it takes has a connector at this position.",
         "Correct the connector's number, which is the \"Position\" on the card.",
         R"(<Key Slot="2" Connector="9" Order="1"/>  <!-- its cards have 1 to 4 -->)"},
        {"missing-position", Warning, "a group names a connector that the card does not have",
         "Groups and modes of a card name its connectors by \"Position\". The card's plain list has none with this "
         "one.",
         "Correct the position, or add the connector to \"Connectors\".",
         R"(<Connector Type="1" Position="5"/>  <!-- in a group of a card with 1 to 4 -->)"},
        {"missing-resolution", Warning, "a resolution is named that the resolution file does not offer",
         "A resolution that is disabled here was never offered, or one that is the default can't be chosen. Sizes must "
         "agree in width and height.",
         "Correct the size, or add it to resolutionratio.xml.",
         R"(<Disables>
  <ResolutionRatio Width="1376" Height="768"/>  <!-- meant: 1366 -->)"},
        {"no-resolution", Warning, "a connector offers no resolution at all",
         "All resolutions of the capacity mode are disabled, or the resolution file has none for it. The user can't "
         "choose any.",
         "Enable one, or give the capacity mode its list in resolutionratio.xml.",
         R"(<CapacityMode Value="3">          <!-- resolutionratio.xml has 0, 1 and 2 -->)"},
        {"unread-file", Warning, "a file that is not read",
         "Only what is referred to is read: cards that some slot takes, connector types that some card has, and files "
         "of a device whose names tell their kind. This one is passed over in silence.",
         "Refer to it, rename it, or keep it elsewhere.",
         R"(subcards/inputs/299.xml          (no slot takes model 299))"},

        // ---- Layouts ----
        {"overlapping-cells", Warning, "two cells of a layout cover the same pixels",
         "The cells of a layout tile its screen. Where two overlap, two outputs show the same part of the picture.",
         "Correct the place or the size of one of them.",
         R"(<Cell X="0"    Y="0" Width="1920" Height="1080"/>
<Cell X="1900" Y="0" Width="1920" Height="1080"/>  <!-- meant: 1920 -->)"},
        {"cell-outside", Warning, "a cell lies outside its layout",
         "The cell's row or column is not among those of the layout, or its rectangle lies beyond the screen.",
         "Correct the cell, or the rows and columns of the layout.",
         R"(<Layout Rows="1" Columns="2">
  <Cell Row="0" Column="2"/>     <!-- columns are 0 and 1 -->)"},

        // ---- The author's own words to the checker ----
        {"unused-expect", Warning, "an expected finding does not appear",
         "A comment tells the checker to expect a finding in the element that follows. There is none: it was mended, "
         "or the comment stands in the wrong place or names another kind.",
         "Take the comment away, or correct it.",
         R"(<!-- lcdcheck: expect unknown-attribute (kept for the old panel) -->
<HDCP Support="1" Editable="1"/>)"},

        // ---- Worth knowing ----
        {"shadowed", Note, "an entry that no query can reach",
         "Queries take the first match, or where told the last. Another entry always matches before this one.",
         "Take the entry away, or give it the key by which it is to be found.",
         R"(<DeviceMode Value="1"/>
<DeviceMode Value="1"/>          <!-- the first one is found -->)"},
        {"default-read", Note, "an attribute is left out and its default read",
         "Every attribute has a default for its absence. This list tells all that a file leaves to them; it is only "
         "shown when asked for with --only default-read.",
         "Nothing is to be mended. Write the attribute where the default is not what you mean.",
         R"(<Connector Type="1" Position="1"/>  <!-- Enable, Visible, ... have defaults -->)"},
    };
    return all;
}

} // namespace

const std::vector<Kind>& kinds() { return table(); }

const Kind* kindOf(const QString& id)
{
    const auto found = std::find_if(table().begin(), table().end(), [&id](const Kind& kind) { return id == kind.id; });
    return found == table().end() ? nullptr : &*found;
}

} // namespace lcdcheck

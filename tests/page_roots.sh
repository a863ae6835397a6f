#!/usr/bin/env bash
# Makes two configuration roots beside the example for tests of the page: one with a fault in every place that a drawing
# shows, and one with a thousand cards.
# usage: page_roots.sh EXAMPLE FOLDER
set -euo pipefail
example=$1
folder=$2

rm -rf "$folder/faults" "$folder/thousand"
mkdir -p "$folder"
cp -r "$example" "$folder/faults"
cp -r "$example" "$folder/thousand"

cd "$folder/faults"
device=(devices/*/)
sed -i '0,/SlotIndex="7"/s//SlotIndex="77"/; 0,/ConnectorIndex="2"/s//ConnectorIndex="99"/; 0,/Width="1920"/s//Width="2920"/' "${device[0]}"screen_wall.xml
sed -i '0,/SubSourceSlotId="2"/s//SubSourceSlotId="88"/' "${device[0]}"feature.xml
sed -i 's/Index="14"/Index="13"/; 0,/ModuleId="204"/s//ModuleId="999"/' "${device[0]}"slot.xml
sed -i '0,/<Layer/s//<Leyer/' "${device[0]}"layer_pip.xml
sed -i 's/<en>.*<\/en>/<en>\&lt;script\&gt;alert(1)\&lt;\/script\&gt;<\/en>/' subcards/inputs/201.xml
sed -i 's/<Connector Type="[0-9]*"/<Connector Type="66"/' subcards/inputs/202.xml
echo '<not XML' >lockarea/lockareaconfig.xml
rm connectors/3.xml

cd "$folder/thousand"
device=(devices/*/)
models=""
for model in {2000..2999}; do
    sed "s/ModelId=\"201\"/ModelId=\"$model\"/" subcards/inputs/201.xml >"subcards/inputs/$model.xml"
    models+="<Subcard ModuleId=\"$model\"/>"
done
sed -i "/<Slot Index=\"2\">/{n;s~<Subcards>~<Subcards>$models~}" "${device[0]}"slot.xml

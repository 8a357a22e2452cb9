#!/usr/bin/env bash
# Brings the sources of the translations up to date with the texts of the program: new ones are marked unfinished, those
# that are gone are dropped. English holds plural forms only; all its other texts are those in the program.
#
#   scripts/update_translations.sh [FOLDER]   folder of the .ts files, resources/translations when not given
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
folder=${1:-resources/translations}
lupdate=$(PATH="/usr/lib/qt6/bin:$PATH" command -v lupdate)

update() { # update CODE STEM [options]
  "$lupdate" -silent -locations none -no-obsolete -extensions cpp,h,ui,qml src qml \
    -source-language en_US -target-language "$1" "${@:3}" -ts "$folder/$2.ts"
}
update en_US KVCenter_en_US -pluralonly
update zh_CN KVCenter_cn
update zh_TW KVCenter_tc
update ja_JP KVCenter_ja_JP
update ko_KR KVCenter_ko_KR

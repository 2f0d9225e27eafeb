#!/usr/bin/env bash
# The program and the modules named, as they were built: every one of them has its tables read-only
# before it runs, checks its stack and can be loaded anywhere; the program checks buffers, too,
# where it was optimised. What the archives named are made of marks where it may be jumped to.
set -euo pipefail

wrong=
expect() {
  grep -qE "$3" <<<"$2" || wrong+="$1: no $3"$'\n'
}
refuse() {
  ! grep -qE "$3" <<<"$2" || wrong+="$1: $3"$'\n'
}

program=$1
buffers=checked
for file in "$@"; do
  case $file in
    --optimised) ;;
    --unoptimised) buffers=unchecked ;;
    *.a)
      members=$(readelf -hW "$file" | grep -c 'Type: *REL')
      marked=$(readelf -nW "$file" | grep -c 'x86 feature: IBT, SHSTK' || true)
      [ "$members" -gt 0 ] && [ "$members" -eq "$marked" ] ||
        wrong+="$file: $marked of $members objects mark where they may be jumped to"$'\n'
      ;;
    *)
      header=$(readelf -hlW "$file")
      tables=$(readelf -dW "$file")
      expect "$file" "$header" 'Type: *DYN'
      expect "$file" "$header" GNU_RELRO
      expect "$file" "$header" 'GNU_STACK.* RW '
      expect "$file" "$tables" 'FLAGS_1.*NOW'
      refuse "$file" "$tables" 'TEXTREL|RPATH|RUNPATH'
      expect "$file" "$(readelf --dyn-syms -W "$file")" __stack_chk_fail
      ;;
  esac
done
expect "$program" "$(readelf -dW "$program")" 'FLAGS_1.*PIE'
[ "$buffers" = unchecked ] || expect "$program" "$(readelf --dyn-syms -W "$program")" '__(snprintf|realpath|vsnprintf)_chk'
[ -z "$wrong" ] || { echo -n "$wrong"; exit 1; }

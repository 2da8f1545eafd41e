#!/usr/bin/env bash
# Nobody but platform/system reads the system's date or time, in C++ or in the engine's SQL, so that
# a test or --today can say what day it is: clock.sh [TREE]
# Measuring how long something takes, by the steady clock, is nobody's date.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

cxx='\b(system|utc|tai|gps|file|high_resolution)_clock\b|::clock::now'
cxx+='|\b(gettimeofday|clock_gettime|timespec_get|ftime|localtime(_r)?|gmtime(_r)?)[[:space:]]*\('
cxx+='|(^|[^A-Za-z0-9_.>])time[[:space:]]*\([[:space:]]*(nullptr|NULL|0|&)'
cxx+='|\b__(DATE|TIME|TIMESTAMP)__\b'
qt='\bQ(Date|Time|DateTime)::current[A-Za-z]*'
sql="\\bCURRENT_(DATE|TIME|TIMESTAMP)\\b|'(now|localtime)'"

mapfile -t files < <(sourcesOf src tests | grep -Ev '^(src|tests)/platform/system/' || true)
if [ ${#files[@]} -eq 0 ]; then
    verdict "no C++ files in $PWD" "" "there is nothing to look at"
fi
faults=$(grep -nE "$cxx|$qt|$sql" "${files[@]}" /dev/null |
    grep -Ev '^[^:]*:[0-9]+:[[:space:]]*//' || true)
verdict "$faults" "no clock but platform::Today in ${#files[@]} files" \
    "ask platform/system/Clock.h for the day instead"

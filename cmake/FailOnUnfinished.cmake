# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT

# Fails when the translation file CATALOGUE has an entry without a translation, and names the source texts.
file(STRINGS ${CATALOGUE} lines ENCODING UTF-8)
set(missing "")
set(source "")
foreach(line IN LISTS lines)
    if(line MATCHES "<source>(.*)")
        set(source "${CMAKE_MATCH_1}")
    elseif(line MATCHES "type=\"unfinished\"")
        string(APPEND missing "\n    ${source}")
    endif()
endforeach()
if(missing)
    message(FATAL_ERROR "Texts without a translation in ${CATALOGUE}:${missing}")
endif()

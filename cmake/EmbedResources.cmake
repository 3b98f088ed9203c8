# Writes resources into a source file. In C++ they become arrays, listed as win32::Resource; in a
# resource script they are written out as numbers.
#   cmake -DOUTPUT=... "-DRESOURCES=TYPE|ID|LANGUAGE|PATH;..." -P EmbedResources.cmake
# RT_BITMAP takes a bitmap as text, RT_DIALOG a dialog of a resource script, any other type the file as
# it is.
include(${CMAKE_CURRENT_LIST_DIR}/DialogTemplate.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/TextBitmap.cmake)

set(arrays "")
set(rows "")
set(script "")
foreach(entry IN LISTS RESOURCES)
    string(REPLACE "|" ";" fields "${entry}")
    list(GET fields 0 type)
    list(GET fields 1 id)
    list(GET fields 2 language)
    list(GET fields 3 path)
    if(type STREQUAL "RT_BITMAP")
        text_bitmap(${path} digits)
        set(typeNumber 2)
    elseif(type STREQUAL "RT_DIALOG")
        dialog_template(${path} digits)
        set(typeNumber 5)
    else()
        file(READ ${path} digits HEX)
    endif()
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${digits}")
    if(type MATCHES "^RT_")
        set(typeText ${type})
    else()
        set(typeText "\"${type}\"")
    endif()
    string(APPEND arrays "constexpr unsigned char k${type}${id}[] = {${bytes}};\n")
    string(APPEND rows
           "        {${typeText}, ${id}, ${language}, k${type}${id}, sizeof k${type}${id}},\n")
    string(REGEX REPLACE "(..)(..)(..)(..)" "0x\\4\\3\\2\\1L," words "${digits}")
    string(REGEX REPLACE ",$" "" words "${words}")
    string(APPEND script "${id} ${typeNumber} { ${words} }\n")
endforeach()

if(OUTPUT MATCHES "\\.rc$")
    file(WRITE ${OUTPUT} "${script}")
    return()
endif()
# The list is built when it is asked for: its types are no constant expressions.
file(WRITE ${OUTPUT} "// Made by the build from hydrofacts/resources.
#include \"hydrofacts/resources/Resources.h\"

namespace {

${arrays}
}  // namespace

namespace hydrofacts {

std::span<const win32::Resource> Resources() {
    static const win32::Resource resources[] = {
${rows}    };
    return resources;
}

}  // namespace hydrofacts
")

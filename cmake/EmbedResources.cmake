# Writes a C++ file that holds files as arrays and lists them as win32::Resource.
#   cmake -DOUTPUT=... "-DRESOURCES=TYPE|ID|LANGUAGE|PATH;..." -P EmbedResources.cmake
set(arrays "")
set(rows "")
foreach(entry IN LISTS RESOURCES)
    string(REPLACE "|" ";" parts "${entry}")
    list(GET parts 0 type)
    list(GET parts 1 id)
    list(GET parts 2 language)
    list(GET parts 3 path)
    file(READ ${path} bytes HEX)
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
    string(APPEND arrays "constexpr unsigned char k${type}${id}[] = {${bytes}};\n")
    string(APPEND rows
           "    {\"${type}\", ${id}, ${language}, k${type}${id}, sizeof k${type}${id}},\n")
endforeach()
file(WRITE ${OUTPUT} "// Made by the build from hydrofacts/resources.
#include \"hydrofacts/resources/Resources.h\"

namespace {

${arrays}
constexpr win32::Resource kResources[] = {
${rows}};

}  // namespace

namespace hydrofacts {

std::span<const win32::Resource> Resources() { return kResources; }

}  // namespace hydrofacts
")

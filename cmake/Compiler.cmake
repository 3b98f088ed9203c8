# What every target of the project is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# One place for programs and libraries, so that a program of the build tree finds the library on
# Windows too, and the library finds the build's own tables beside that place.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

# A contracted multiply-add rounds once where the formulas are defined to round twice: results would
# differ from one processor to the next.
add_compile_options(-ffp-contract=off)

# The library calls its own functions directly; nobody is meant to replace them from outside.
add_compile_options(-fno-semantic-interposition)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast
                    -Wcast-qual -Wundef -Wformat=2)
# GCC 12 sees overlapping copies in std::string that aren't there (GCC bug 105651).
if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options(-Wno-restrict)
endif()
if(HYDROFACTS_WERROR)
    add_compile_options(-Werror)
endif()

if(HYDROFACTS_SANITIZE)
    add_compile_options(-fsanitize=${HYDROFACTS_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    # The sanitizers' code hides from GCC's flow analysis what has been set: it warns about std::regex.
    add_compile_options(-Wno-maybe-uninitialized)
    add_link_options(-fsanitize=${HYDROFACTS_SANITIZE})
endif()

# Header-only packages that live in /usr/include: when cross-compiling, that folder itself must stay
# out of the search path, so the few that are wanted are linked into a folder of their own.
function(hydrofacts_use_host_headers target)
    if(NOT CMAKE_CROSSCOMPILING)
        return()
    endif()
    set(links ${CMAKE_BINARY_DIR}/host-include)
    file(MAKE_DIRECTORY ${links})
    foreach(package IN LISTS ARGN)
        file(CREATE_LINK /usr/include/${package} ${links}/${package} SYMBOLIC)
    endforeach()
    target_include_directories(${target} SYSTEM PRIVATE ${links})
endfunction()

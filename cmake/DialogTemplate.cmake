include(${CMAKE_CURRENT_LIST_DIR}/LittleEndian.cmake)

# Turns a dialog of a resource script into the extended template that resource compilers make of it,
# as hexadecimal digits. Read are the statements DIALOGEX, STYLE, EXSTYLE, CAPTION, FONT and CONTROL,
# one a line, with ASCII texts and the styles below.
set(dialog_styles
    "DS_FIXEDSYS=0x8" "DS_SETFONT=0x40" "ES_AUTOHSCROLL=0x80" "WS_BORDER=0x800000"
    "WS_CAPTION=0xC00000" "WS_CHILD=0x40000000" "WS_EX_TOOLWINDOW=0x80" "WS_GROUP=0x20000"
    "WS_POPUP=0x80000000" "WS_TABSTOP=0x10000" "WS_VISIBLE=0x10000000")

# What the first group of the pattern matches in the text.
function(dialog_part text pattern result)
    if(NOT text MATCHES "${pattern}")
        message(FATAL_ERROR "no ${pattern} in the dialog")
    endif()
    set(${result} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

function(append_style variable style)
    foreach(known IN LISTS dialog_styles)
        string(REGEX MATCH "^[A-Z_]+" name ${known})
        string(REPLACE "${name}=" "" value ${known})
        string(REGEX REPLACE "${name}" "${value}" style "${style}")
    endforeach()
    append_little_endian(${variable} "${style}" 4)
    set(${variable} ${${variable}} PARENT_SCOPE)
endfunction()

# Numbers with commas between, two bytes each.
function(append_words variable numbers)
    string(REGEX REPLACE ", *" ";" numbers "${numbers}")
    foreach(number IN LISTS numbers)
        append_little_endian(${variable} ${number} 2)
    endforeach()
    set(${variable} ${${variable}} PARENT_SCOPE)
endfunction()

# A text in UTF-16 with its end.
function(append_text variable text)
    string(HEX "${text}" digits)
    string(REGEX REPLACE "(..)" "\\100" digits "${digits}")
    set(${variable} "${${variable}}${digits}0000" PARENT_SCOPE)
endfunction()

function(dialog_template path result)
    file(READ ${path} text)
    string(REGEX MATCHALL "CONTROL [^\n]+" controls "${text}")
    list(LENGTH controls count)
    dialog_part("${text}" "DIALOGEX ([0-9, ]+)" place)
    dialog_part("${text}" "\nSTYLE ([^\n]+)" style)
    dialog_part("${text}" "\nEXSTYLE ([^\n]+)" exStyle)
    dialog_part("${text}" "\nCAPTION \"([^\"]*)\"" caption)
    dialog_part("${text}" "\nFONT ([0-9]+)," size)
    dialog_part("${text}" "\nFONT [0-9]+, \"([^\"]*)\"" font)
    dialog_part("${text}" "\nFONT [0-9]+, \"[^\"]*\", ([0-9]+)," weight)
    dialog_part("${text}" "\nFONT [0-9]+, \"[^\"]*\", [0-9]+, ([01])," italic)
    dialog_part("${text}" "\nFONT [0-9]+, \"[^\"]*\", [0-9]+, [01], ([0-9]+)" charset)

    set(bytes "")
    append_words(bytes "1, 0xffff") # version and mark of the extended template
    append_little_endian(bytes 0 4) # help
    append_style(bytes "${exStyle}")
    append_style(bytes "${style}")
    append_words(bytes "${count}, ${place}, 0, 0") # no menu, the class of dialogs
    append_text(bytes "${caption}")
    append_words(bytes "${size}, ${weight}")
    append_little_endian(bytes ${italic} 1)
    append_little_endian(bytes ${charset} 1)
    append_text(bytes "${font}")
    foreach(control IN LISTS controls)
        append_control(bytes "${control}")
    endforeach()
    set(${result} ${bytes} PARENT_SCOPE)
endfunction()

# CONTROL "text", id, "class", style, x, y, width, height
function(append_control variable control)
    if(NOT control MATCHES
       "^CONTROL \"([^\"]*)\", ([0-9]+), \"([A-Za-z]+)\", ([A-Z_ |]+), ([0-9, ]+)$")
        message(FATAL_ERROR "not understood: ${control}")
    endif()
    set(text "${CMAKE_MATCH_1}")
    set(id ${CMAKE_MATCH_2})
    set(class ${CMAKE_MATCH_3})
    set(style "${CMAKE_MATCH_4}")
    set(place "${CMAKE_MATCH_5}")
    # Each control begins at a whole word of four bytes: at eight digits.
    string(LENGTH "${${variable}}" length)
    math(EXPR padding "(8 - ${length} % 8) % 8")
    string(REPEAT "0" ${padding} padding)
    string(APPEND ${variable} "${padding}")
    append_little_endian(${variable} 0 4) # help
    append_little_endian(${variable} 0 4) # extended style
    append_style(${variable} "${style}")
    append_words(${variable} "${place}")
    append_little_endian(${variable} ${id} 4)
    append_text(${variable} "${class}")
    append_text(${variable} "${text}")
    append_little_endian(${variable} 0 2) # no data
    set(${variable} ${${variable}} PARENT_SCOPE)
endfunction()

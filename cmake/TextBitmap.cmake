include(${CMAKE_CURRENT_LIST_DIR}/LittleEndian.cmake)

# Turns a bitmap that is written as text into what a bitmap resource holds, as hexadecimal digits: the
# head, a palette of 16 colours, four bits a pixel, the lowest row first. In the text
#   "width N"           tells how many pixels a row has
#   "c rrggbb meaning"  gives a character its colour; the first one is the ground
#   "= title"           begins 16 rows of cells, 16 characters each with a blank between
# and other lines ahead of the first cells are remarks.
function(text_bitmap path result)
    file(STRINGS ${path} lines)
    set(width 0)
    set(colors "")
    set(palette "")
    foreach(y RANGE 15)
        set(row${y} "")
    endforeach()
    set(y -1)
    foreach(line IN LISTS lines)
        if(line MATCHES "^= ")
            if(NOT y EQUAL -1 AND NOT y EQUAL 16)
                message(FATAL_ERROR "${path}: a cell has 16 rows, not ${y}")
            endif()
            set(y 0)
        elseif(y EQUAL -1 AND line MATCHES "^width ([0-9]+)$")
            set(width ${CMAKE_MATCH_1})
        elseif(y EQUAL -1 AND line MATCHES "^(.) (..)(..)(..) ")
            string(APPEND colors "${CMAKE_MATCH_1}")
            string(APPEND palette "${CMAKE_MATCH_4}${CMAKE_MATCH_3}${CMAKE_MATCH_2}00")
        elseif(NOT y EQUAL -1 AND line)
            string(REPLACE " " "" row${y}_cells "${line}")
            string(APPEND row${y} "${row${y}_cells}")
            math(EXPR y "${y} + 1")
        endif()
    endforeach()
    string(LENGTH "${colors}" count)
    math(EXPR unused "16 - ${count}")
    string(REPEAT "00000000" ${unused} unused)

    set(bytes "")
    append_little_endian(bytes 40 4) # the size of this head
    append_little_endian(bytes ${width} 4)
    append_little_endian(bytes 16 4) # height
    append_little_endian(bytes 1 2)  # planes
    append_little_endian(bytes 4 2)  # bits a pixel
    string(REPEAT "00" 24 rest)      # not compressed; sizes and numbers that follow from the above
    string(APPEND bytes ${rest} ${palette} ${unused})
    foreach(y RANGE 15 0 -1)
        text_bitmap_row("${path}" "${row${y}}" "${colors}" ${width} row)
        string(APPEND bytes ${row})
    endforeach()
    set(${result} ${bytes} PARENT_SCOPE)
endfunction()

# One row: what cells leave is ground, and rows end at whole words of four bytes.
function(text_bitmap_row path cells colors width result)
    string(LENGTH "${colors}" count)
    foreach(i RANGE 1 ${count})
        math(EXPR i "${i} - 1")
        math(EXPR digit "${i}" OUTPUT_FORMAT HEXADECIMAL)
        string(SUBSTRING ${digit} 2 1 digit)
        string(SUBSTRING "${colors}" ${i} 1 color)
        # By way of other characters, as a digit may be the character of another colour.
        string(REPLACE "${color}" "<${digit}" cells "${cells}")
    endforeach()
    if(NOT cells MATCHES "^(<[0-9a-f])+$")
        message(FATAL_ERROR "${path}: a pixel without a colour")
    endif()
    string(REPLACE "<" "" cells "${cells}")
    string(LENGTH "${cells}" given)
    math(EXPR missing "${width} - ${given}")
    math(EXPR padding "(8 - ${width} % 8) % 8")
    if(missing LESS 0 OR missing GREATER_EQUAL 16)
        message(FATAL_ERROR "${path}: the cells don't fill the width of ${width}")
    endif()
    math(EXPR blank "${missing} + ${padding}")
    string(REPEAT "0" ${blank} blank)
    set(${result} "${cells}${blank}" PARENT_SCOPE)
endfunction()

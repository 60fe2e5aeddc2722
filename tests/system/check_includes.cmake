# Refuses includes that climb out of a layer, widgets below the user interface, and hidapi above the transport.
cmake_minimum_required(VERSION 3.25)
file(GLOB_RECURSE sources ${SOURCE_DIR}/src/*.cpp ${SOURCE_DIR}/src/*.h ${SOURCE_DIR}/tools/*.cpp
     ${SOURCE_DIR}/tools/*.h ${SOURCE_DIR}/tests/*.cpp ${SOURCE_DIR}/tests/*.h)

function(refuse file pattern why)
    file(STRINGS ${file} lines REGEX "${pattern}")
    foreach(line IN LISTS lines)
        message("${file}: ${why}: ${line}")
        set_property(GLOBAL PROPERTY layers_broken TRUE)
    endforeach()
endfunction()

foreach(file IN LISTS sources)
    refuse(${file} [[#include "(.*/)?[.][.]/]] "an include leaves its layer")
    if(file MATCHES "/src/" AND NOT file MATCHES "/src/(ui|app)/")
        refuse(${file} "#include <Q(Widget|Application|MessageBox|Label|PushButton)>" "widgets below the user interface")
    endif()
    if(file MATCHES "/src/" AND NOT file MATCHES "/src/transport/")
        refuse(${file} "#include <hidapi" "hidapi outside the transport")
    endif()
endforeach()

get_property(broken GLOBAL PROPERTY layers_broken)
if(broken)
    message(FATAL_ERROR "Includes break the layers")
endif()

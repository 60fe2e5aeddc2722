# add_layer(NAME SOURCES ... HEADERS ... LINKS ... USES ...)
# LINKS: layers whose types stand in our headers. USES: layers that only our sources need.
# A header is included as "layer/header.h", and only by targets that link the layer.
function(add_layer name)
    cmake_parse_arguments(ARG "" "" "SOURCES;HEADERS;LINKS;USES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES} ${ARG_HEADERS})
    set(root ${CMAKE_BINARY_DIR}/include/${name})
    foreach(header IN LISTS ARG_HEADERS) # forwarding headers: what is not listed stays private
        file(CONFIGURE OUTPUT ${root}/${name}/${header}
             CONTENT "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${header}\"\n")
    endforeach()
    target_include_directories(${name} PUBLIC ${root})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_USES} project_options)
    use_precompiled_headers(${name})
endfunction()

# add_qt_test(NAME SOURCES ... LINKS ...): one QtTest program, run offscreen by ctest.
function(add_qt_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt5::Test project_options)
    use_precompiled_headers(${name})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;TSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/tsan.supp second_deadlock_stack=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/lsan.supp print_suppressions=0")
endfunction()

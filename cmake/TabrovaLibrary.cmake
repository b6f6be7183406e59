# One way to declare a room of the house: a static library with the project's warnings, which sees the headers of the
# rooms that it may use and no others.

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

function(tabrova_warnings name)
    target_compile_options(${name} PRIVATE -Wall -Wextra -Wshadow -Wconversion)
    # GCC 12 sees strings that overlap themselves in "text" + string where the standard library's own code is inlined at
    # -O3 (its bug 105651, mended in 13): false alarms all of them.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12
            AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-Wno-restrict>)
    endif()
    if(TABROVA_WERROR)
        target_compile_options(${name} PRIVATE -Werror)
    endif()
endfunction()

# The files of a room that match a pattern, relative to its folder. A sub-folder belongs to the room unless it has a
# CMakeLists.txt and thereby is a room of its own.
function(tabrova_files_of_room result folder pattern)
    file(GLOB_RECURSE found LIST_DIRECTORIES false RELATIVE ${folder} CONFIGURE_DEPENDS ${folder}/${pattern})
    set(files)
    foreach(file IN LISTS found)
        set(own TRUE)
        cmake_path(GET file PARENT_PATH sub)
        while(own AND sub)
            if(EXISTS ${folder}/${sub}/CMakeLists.txt)
                set(own FALSE)
            endif()
            cmake_path(GET sub PARENT_PATH sub)
        endwhile()
        if(own)
            list(APPEND files ${file})
        endif()
    endforeach()
    set(${result} ${files} PARENT_SCOPE)
endfunction()

# Gives whoever links the room its headers and no other's: a folder of the build tree with one forwarder a header. An
# unchanged forwarder keeps its time, that of a header that is gone goes too.
function(tabrova_show_headers name folder)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${CMAKE_SOURCE_DIR} OUTPUT_VARIABLE place)
    set(shown ${CMAKE_BINARY_DIR}/rooms/${name})
    tabrova_files_of_room(headers ${folder} *.h)
    list(TRANSFORM headers PREPEND ${place}/)
    file(GLOB_RECURSE gone RELATIVE ${shown} ${shown}/*)
    list(REMOVE_ITEM gone ${headers})
    foreach(header IN LISTS gone)
        file(REMOVE ${shown}/${header})
    endforeach()
    foreach(header IN LISTS headers)
        file(CONFIGURE OUTPUT ${shown}/${header} CONTENT "#include \"${CMAKE_SOURCE_DIR}/${header}\"\n" @ONLY)
    endforeach()
    target_include_directories(${name} PUBLIC ${shown})
endfunction()

# tabrova_room(NAME USES LIBRARY... [FOLDER SUB_FOLDER]): the library of this folder, or of one below it. It sees its own
# headers and those of the rooms that it uses. A main.cpp belongs to the program that stands in the same folder.
function(tabrova_room name)
    cmake_parse_arguments(ARG "" "FOLDER" "USES" ${ARGN})
    set(folder ${CMAKE_CURRENT_SOURCE_DIR})
    if(ARG_FOLDER)
        cmake_path(APPEND folder ${ARG_FOLDER})
    endif()
    tabrova_files_of_room(sources ${folder} *.cpp)
    list(REMOVE_ITEM sources main.cpp)
    list(TRANSFORM sources PREPEND ${folder}/)
    add_library(${name} STATIC ${sources})
    tabrova_warnings(${name})
    tabrova_show_headers(${name} ${folder})
    target_link_libraries(${name} PUBLIC ${ARG_USES})
endfunction()

# Every sub-folder of these is a tool window's room, which no other tool sees. All of them together have the folder's name.
function(tabrova_tools all)
    file(GLOB tools LIST_DIRECTORIES true RELATIVE ${CMAKE_SOURCE_DIR}/${all} CONFIGURE_DEPENDS
        ${CMAKE_SOURCE_DIR}/${all}/*)
    add_library(${all} INTERFACE)
    foreach(tool IN LISTS tools)
        if(IS_DIRECTORY ${CMAKE_SOURCE_DIR}/${all}/${tool})
            tabrova_room(${all}_${tool} FOLDER ${all}/${tool}
                USES core platform tabview sound richtext editing forms workbench Qt6::Widgets)
            tabrova_qt_headers(${all}_${tool})
            target_link_libraries(${all} INTERFACE ${all}_${tool})
        endif()
    endforeach()
endfunction()

# The toolkit's headers, compiled once for all libraries that draw on them.
function(tabrova_qt_headers name)
    if(NOT TARGET qt_headers)
        add_library(qt_headers STATIC ${CMAKE_SOURCE_DIR}/cmake/qt_headers.cpp)
        target_link_libraries(qt_headers PRIVATE Qt6::Widgets)
        tabrova_warnings(qt_headers)
        target_precompile_headers(qt_headers PRIVATE <QtWidgets>)
    endif()
    target_precompile_headers(${name} REUSE_FROM qt_headers)
endfunction()

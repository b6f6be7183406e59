# One way to declare a room of the house: a static library with the project's warnings.

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

function(tabrova_library name)
    add_library(${name} STATIC ${ARGN})
    tabrova_warnings(${name})
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

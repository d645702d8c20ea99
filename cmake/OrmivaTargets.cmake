# How a target of this project is declared: warnings, include roots, and nothing implicit.

add_library(ormiva_options INTERFACE)
target_compile_options(ormiva_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
target_compile_definitions(ormiva_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS QT_NO_FOREACH)
if(ORMIVA_WARNINGS_AS_ERRORS)
    target_compile_options(ormiva_options INTERFACE -Werror)
endif()

# ormiva_library(name SOURCES … LINK …): a static library of the folder it stands in.
# What it links is what it may include: its own folder is offered to those that link it, as <lib folder>.
function(ormiva_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ormiva_options)
endfunction()

# ormiva_qml_module(name URI uri SOURCES … QML_FILES … LINK … [RESOURCES …]): a static library that is a QML
# module too. Executables reach the modules through the target `ormiva_qml`, which brings in their plugins.

set(ORMIVA_QML_PREFIX /qt-project.org/imports)

function(ormiva_qml_module name)
    cmake_parse_arguments(ARG "" "URI" "SOURCES;QML_FILES;RESOURCES;LINK;IMPORTS" ${ARGN})
    string(REPLACE "." "/" path ${ARG_URI})
    foreach(file IN LISTS ARG_QML_FILES)
        get_filename_component(base ${file} NAME)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${base})
    endforeach()
    qt_add_qml_module(${name} STATIC
        URI ${ARG_URI}
        VERSION 1.0
        RESOURCE_PREFIX ${ORMIVA_QML_PREFIX}
        OUTPUT_DIRECTORY ${QT_QML_OUTPUT_DIRECTORY}/${path}
        IMPORT_PATH ${QT_QML_OUTPUT_DIRECTORY}
        IMPORTS ${ARG_IMPORTS}
        SOURCES ${ARG_SOURCES}
        QML_FILES ${ARG_QML_FILES}
        RESOURCES ${ARG_RESOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ormiva_options)

    # What the QML tools write is not ours to clean up.
    get_target_property(sources ${name} SOURCES)
    list(FILTER sources INCLUDE REGEX "qmlcache|qmltyperegistrations|\\.rcc/")
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
endfunction()

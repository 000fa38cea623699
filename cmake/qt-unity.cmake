# Read by Qt's own configure (scripts/windows/qt.sh). Each library and plugin we build is
# compiled as unity sources, eight files at a time in one unit, HarfBuzz (which its
# authors also ship as one amalgamated source) as a single unit: the headers are parsed
# once per batch instead of once per file, which halves the build. Qt 6.4 is not written
# for this, so the files below, in which two sources clash when put together (a macro or
# a file-local helper of the same name, or an API compiled under a define of its own),
# compile alone; one that is missed fails to build, it cannot go wrong silently.
set(vorkan_qt_alone_Core
    corelib/compat/removed_api.cpp corelib/global/qrandom.cpp corelib/io/qbuffer.cpp
    corelib/io/qdir.cpp corelib/io/qurlquery.cpp corelib/io/qurlrecode.cpp
    corelib/kernel/qmetaobjectbuilder.cpp corelib/serialization/qcborstreamwriter.cpp
    corelib/text/qstring.cpp corelib/text/qunicodetools.cpp)
set(vorkan_qt_alone_Gui
    gui/image/qpixmapcache.cpp gui/kernel/qplatformintegrationfactory.cpp
    gui/kernel/qwindowsysteminterface.cpp gui/text/windows/qwindowsfontengine.cpp
    gui/util/qpkmhandler.cpp)
set(vorkan_qt_alone_Widgets widgets/compat/removed_api.cpp)
set(vorkan_qt_alone_Test testlib/qteamcitylogger.cpp)
set(vorkan_qt_alone_QWindowsIntegrationPlugin plugins/platforms/windows/qwindowspointerhandler.cpp)
set(vorkan_qt_alone_QWindowsVistaStylePlugin plugins/styles/windowsvista/qwindowsxpstyle.cpp)

function(vorkan_qt_unity)
    foreach(target Core Gui Widgets Test QWindowsIntegrationPlugin QWindowsVistaStylePlugin
                   BundledHarfbuzz)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON)
        set(alone ${vorkan_qt_alone_${target}})
        if(alone)
            list(TRANSFORM alone PREPEND "${CMAKE_SOURCE_DIR}/src/")
            set_source_files_properties(${alone} TARGET_DIRECTORY ${target}
                PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
        endif()
    endforeach()
    set_target_properties(BundledHarfbuzz PROPERTIES UNITY_BUILD_BATCH_SIZE 0)
endfunction()
cmake_language(DEFER DIRECTORY "${CMAKE_SOURCE_DIR}" CALL vorkan_qt_unity)

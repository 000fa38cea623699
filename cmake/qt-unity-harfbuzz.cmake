# Read by Qt's own configure (scripts/windows/qt.sh): HarfBuzz, which its authors also
# ship as one amalgamated source, is compiled as one unit instead of 54 files: the same
# code in half the processor time. Qt's own sources are not made for that.
cmake_language(DEFER DIRECTORY "${CMAKE_SOURCE_DIR}" CALL
    set_target_properties BundledHarfbuzz PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)

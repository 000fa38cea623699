# Read by Qt's own configure (scripts/windows/qt.sh). Qt compiles its third-party code
# file by file; HarfBuzz, which its authors also ship as one amalgamated source, compiles
# far faster as a single unit, which parses its heavy headers once instead of sixty times.
function(vorkan_harfbuzz_unity)
    set_target_properties(BundledHarfbuzz PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)
endfunction()
cmake_language(DEFER DIRECTORY "${CMAKE_SOURCE_DIR}" CALL vorkan_harfbuzz_unity)

# Each build that reaches users must replace the one before it, so installers and
# packages carry PROJECT_VERSION.N, N being the number of commits behind the build
# (0 when the sources are not a git checkout of their own). The program itself still
# shows PROJECT_VERSION alone.
set(VORKAN_BUILD_NUMBER 0)
find_package(Git QUIET)
if(Git_FOUND)
    execute_process(COMMAND "${GIT_EXECUTABLE}" rev-parse --show-toplevel
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" OUTPUT_VARIABLE top
        OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    file(REAL_PATH "${PROJECT_SOURCE_DIR}" sources)
    # Not the commits of some other repository the sources happen to sit in.
    if(top)
        file(REAL_PATH "${top}" top)
    endif()
    if(top STREQUAL sources)
        execute_process(COMMAND "${GIT_EXECUTABLE}" rev-list --count HEAD
            WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" OUTPUT_VARIABLE count
            OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
        if(count MATCHES "^[0-9]+$")
            set(VORKAN_BUILD_NUMBER ${count})
        endif()
    endif()
endif()
set(VORKAN_RELEASE_VERSION "${PROJECT_VERSION}.${VORKAN_BUILD_NUMBER}")

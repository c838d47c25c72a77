# Functions that define every target of the tree, with the same standard, warnings and include rules.
option(QUELLIN_PCH "Precompile the standard and Qt Core headers" ON)
option(QUELLIN_COMPILE_QML "Compile the QML files; otherwise they are compiled when the program starts" ON)
option(QUELLIN_WERROR "Treat warnings as errors" ON)
option(QUELLIN_BENCH "Build the benchmarks" OFF)
set(QUELLIN_SANITIZE "" CACHE STRING "Sanitizers to build with, comma-separated: address,undefined or thread")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(QUELLIN_CCACHE ccache)
if(QUELLIN_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_NOHASHDIR=1 ${QUELLIN_CCACHE})
endif()

if(QUELLIN_SANITIZE)
    add_compile_options(-fsanitize=${QUELLIN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${QUELLIN_SANITIZE})
endif()

# Compile options of all our targets, generated code included.
add_library(guide_options INTERFACE)
target_compile_options(guide_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                               -Woverloaded-virtual -Wcast-qual -Wimplicit-fallthrough)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # clang warns about the implementation of the standard library's stable_sort; g++ still checks our own calls.
    target_compile_options(guide_options INTERFACE -Wno-deprecated-declarations)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # When optimising, g++ 12 reports overflows in unreachable branches of std::string's operator+.
    target_compile_options(guide_options INTERFACE -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow)
endif()
if(QUELLIN_WERROR)
    target_compile_options(guide_options INTERFACE -Werror)
endif()
if(QUELLIN_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # ccache can only cache objects built with a precompiled header if its use stays visible in the output.
    target_compile_options(guide_options INTERFACE -fpch-preprocess)
endif()
target_compile_definitions(guide_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                                                   QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH)

# Compiles TARGET with the precompiled headers that all our targets share. Needs the target Qt6::Core.
function(guide_precompile TARGET)
    if(NOT QUELLIN_PCH)
        return()
    endif()
    if(NOT TARGET guide_pch)
        file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/pch/guide_pch.cpp CONTENT "")
        add_library(guide_pch OBJECT ${CMAKE_BINARY_DIR}/pch/guide_pch.cpp)
        target_link_libraries(guide_pch PRIVATE Qt6::Core guide_options)
        target_precompile_headers(guide_pch PRIVATE <algorithm> <chrono> <functional> <memory> <mutex> <optional>
                                  <string> <string_view> <unordered_map> <vector> <QByteArray> <QString>)
    endif()
    target_precompile_headers(${TARGET} REUSE_FROM guide_pch)
endfunction()

# guide_folder(NAME SOURCES … [LINKS …])
#
# Defines the static library guide_NAME of the folder src/NAME. Its headers are included as "NAME/Header.h", and only
# targets that link it can find them: each folder is exposed through a separate link in the build folder.
function(guide_folder NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    string(REPLACE "/" "_" TARGET_NAME ${NAME})
    set(TARGET guide_${TARGET_NAME})
    add_library(${TARGET} STATIC ${ARG_SOURCES})
    guide_expose(${TARGET} ${NAME} PUBLIC)
    target_link_libraries(${TARGET} PUBLIC ${ARG_LINKS} PRIVATE guide_options)
    guide_precompile(${TARGET})
endfunction()

# Lets TARGET include the headers of src/FOLDER as "FOLDER/Header.h".
function(guide_expose TARGET FOLDER SCOPE)
    string(REGEX REPLACE "/.*" "" TOP ${FOLDER})
    set(ROOT ${CMAKE_BINARY_DIR}/include/${TOP})
    file(MAKE_DIRECTORY ${ROOT})
    if(NOT EXISTS ${ROOT}/${TOP})
        file(RELATIVE_PATH WAY ${ROOT} ${PROJECT_SOURCE_DIR}/src/${TOP})
        file(CREATE_LINK ${WAY} ${ROOT}/${TOP} SYMBOLIC)
    endif()
    target_include_directories(${TARGET} ${SCOPE} ${ROOT})
endfunction()

# guide_tests(NAME SOURCES … [LINKS …] [LABELS …])
#
# Defines the GoogleTest program guide_NAME_tests, whose tests are registered with ctest one by one.
# Tests run in an unusual time zone and locale unless they set another one (tests/TestEnvironment.h).
function(guide_tests NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;LABELS" ${ARGN})
    set(TARGET guide_${NAME}_tests)
    add_executable(${TARGET} ${ARG_SOURCES})
    target_include_directories(${TARGET} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${TARGET} PRIVATE QUELLIN_TEST_DATA="${PROJECT_SOURCE_DIR}/tests"
                                                 QUELLIN_SOURCE_DATA="${PROJECT_SOURCE_DIR}/data")
    target_link_libraries(${TARGET} PRIVATE ${ARG_LINKS} guide_options guide_test_main GTest::gtest)
    guide_precompile(${TARGET})
    set(PROPERTIES TIMEOUT 120)
    if(ARG_LABELS)
        list(APPEND PROPERTIES LABELS ${ARG_LABELS})
    endif()
    include(GoogleTest)
    gtest_discover_tests(${TARGET} DISCOVERY_TIMEOUT 120 PROPERTIES ${PROPERTIES})
endfunction()

# Lets a program that runs from the build tree find the source tree's data next to its executable.
function(guide_bundle_beside TARGET)
    get_target_property(FOLDER ${TARGET} BINARY_DIR)
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/data ${FOLDER}/data SYMBOLIC)
endfunction()

# The string table in other languages. The English one holds the plural forms.
set(GUIDE_TRANSLATIONS)
foreach(LANGUAGE cs en sk)
    list(APPEND GUIDE_TRANSLATIONS ${PROJECT_SOURCE_DIR}/data/translations/quellin_${LANGUAGE}.ts)
endforeach()

# Puts the string table into TARGET, where installTranslations() finds it. Once per folder.
function(guide_translations TARGET)
    set(FOLDER ${CMAKE_CURRENT_BINARY_DIR}/translations)
    set_source_files_properties(${GUIDE_TRANSLATIONS} PROPERTIES OUTPUT_LOCATION ${FOLDER})
    qt_add_lrelease(${TARGET} TS_FILES ${GUIDE_TRANSLATIONS} QM_FILES_OUTPUT_VARIABLE TABLES)
    qt_add_resources(${TARGET} translations PREFIX /translations BASE ${FOLDER} FILES ${TABLES})
endfunction()

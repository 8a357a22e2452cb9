# One place for compiler settings and for the three kinds of target: library, program, test.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(KV_CCACHE ccache)
if(KV_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${KV_CCACHE}")
endif()

# Settings of our own code: warnings, and no silent conversions between bytes and text.
add_library(kv_options INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(kv_options INTERFACE -Wall -Wextra -Wshadow -Wconversion)
  if(KV_WERROR)
    target_compile_options(kv_options INTERFACE -Werror -Wno-error=deprecated-declarations)
  endif()
elseif(MSVC)
  target_compile_options(kv_options INTERFACE /W4 /utf-8)
endif()
target_compile_definitions(kv_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_MESSAGELOGCONTEXT) # files and lines in the message log of release builds too

# kv_library(kv_link SOURCES a.cpp a.h LINK Qt6::Core kv_app): a static library whose includes start at src/.
function(kv_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE kv_options)
endfunction()

# kv_test_entry(tst_x COMMAND $<TARGET_FILE:tst_x> [GUI] [ENVIRONMENT NAME=VALUE] [TIMEOUT seconds]): one ctest entry. It
# runs in a folder of its own, because the program writes its settings and logs into the working folder; a test with
# windows runs on a display of its own.
function(kv_test_entry name)
  cmake_parse_arguments(ARG "GUI" "ENVIRONMENT;TIMEOUT" "COMMAND" ${ARGN})
  set(folder "${CMAKE_BINARY_DIR}/test-run/${name}")
  file(MAKE_DIRECTORY "${folder}")
  if(ARG_GUI)
    list(PREPEND ARG_COMMAND "${PROJECT_SOURCE_DIR}/tests/support/with_display.sh")
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_test(NAME ${name} COMMAND ${ARG_COMMAND} WORKING_DIRECTORY "${folder}")
  # The long ones first, so that none is left to run alone at the end.
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} COST ${ARG_TIMEOUT} ENVIRONMENT "${ARG_ENVIRONMENT}")
  if(ARG_GUI)
    set_tests_properties(${name} PROPERTIES LABELS gui)
  endif()
endfunction()

# kv_test(tst_imu_parser SOURCES tst_imu_parser.cpp LINK kv_link [GUI] [TIMEOUT seconds]): one test executable with its
# ctest entry.
function(kv_test name)
  cmake_parse_arguments(ARG "GUI" "TIMEOUT" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  if(CMAKE_CXX_FLAGS MATCHES "fsanitize=address")
    target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/keep_modules.cpp")
  endif()
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test kv_options)
  target_compile_definitions(${name} PRIVATE
    KV_SIMULATOR_PATH="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/kv_simulator")
  set(options "")
  if(ARG_GUI)
    list(APPEND options GUI)
  endif()
  kv_test_entry(${name} COMMAND $<TARGET_FILE:${name}> TIMEOUT "${ARG_TIMEOUT}" ${options})
endfunction()

# kv_qml_module(kv_wave_view URI KVCenter.Wave [FOLDER qml/wave] QML WaveChart ... [DEPENDENCIES KVCenter.Chart ...]
# SOURCES a.cpp a.h LINK kv_wave ...): a declarative module as a static library. Its .qml files are in FOLDER, or beside
# its CMakeLists.txt.
function(kv_qml_module name)
  cmake_parse_arguments(ARG "" "URI;FOLDER" "QML;DEPENDENCIES;SOURCES;LINK" ${ARGN})
  set(files ${ARG_QML})
  if(ARG_FOLDER)
    list(TRANSFORM files PREPEND "${PROJECT_SOURCE_DIR}/${ARG_FOLDER}/")
  endif()
  list(TRANSFORM files APPEND ".qml")
  foreach(file ${files})
    get_filename_component(alias "${file}" NAME)
    set_source_files_properties("${file}" PROPERTIES QT_RESOURCE_ALIAS "${alias}")
  endforeach()
  qt_add_library(${name} STATIC)
  # Without the import path the compiler of the files does not see the types of our other modules, and the views run
  # interpreted.
  qt_add_qml_module(${name}
    URI ${ARG_URI}
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    IMPORT_PATH "${CMAKE_BINARY_DIR}/qml"
    DEPENDENCIES QtQuick ${ARG_DEPENDENCIES}
    SOURCES ${ARG_SOURCES}
    QML_FILES ${files})
  # The generated registration includes headers by name alone; a "form_x.h" of a view is not a Designer form.
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src" PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  set_target_properties(${name} PROPERTIES AUTOUIC OFF)
  target_link_libraries(${name} PUBLIC ${ARG_LINK} Qt6::Quick PRIVATE kv_options kv_generated)
endfunction()

# kv_add_images(target): embeds the program's pictures under ":/images/".
function(kv_add_images target)
  file(GLOB images CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/resources/images/*.png")
  qt_add_resources(${target} kv_images PREFIX "/images" BASE "${PROJECT_SOURCE_DIR}/resources/images" FILES ${images})
endfunction()

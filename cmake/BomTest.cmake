include(GoogleTest)

# bom_add_test(NAME <exe> SOURCES <files...> LIBS <targets...> [NEEDS_GUI] [LABELS <labels...>])
# Builds one GoogleTest executable and registers each of its tests with CTest.
# NEEDS_GUI runs it on Qt's offscreen platform. BOM_STAGE_DIR and
# BOM_SAMPLES_DIR name the tests' own pristine stage, never the workbench's.
function(bom_add_test)
  cmake_parse_arguments(ARG "NEEDS_GUI" "NAME" "SOURCES;LIBS;LABELS" ${ARGN})
  if(ARG_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "bom_add_test: unknown arguments ${ARG_UNPARSED_ARGUMENTS}")
  endif()
  if(NOT ARG_NAME OR NOT ARG_SOURCES)
    message(FATAL_ERROR "bom_add_test: NAME and SOURCES are required")
  endif()
  add_executable(${ARG_NAME} ${ARG_SOURCES})
  target_link_libraries(${ARG_NAME} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gtest_main GTest::gmock)
  target_compile_definitions(${ARG_NAME} PRIVATE
    BOM_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    BOM_STAGE_DIR="${BOM_TEST_STAGE_DIR}"
    BOM_SAMPLES_DIR="${BOM_TEST_SAMPLES_DIR}")
  # What a test sends to the trash lands in the build tree, never in the
  # user's own trash.
  set(env "XDG_DATA_HOME=${CMAKE_BINARY_DIR}/test-data-home")
  if(ARG_NEEDS_GUI)
    list(APPEND env "QT_QPA_PLATFORM=offscreen")
  endif()
  gtest_discover_tests(${ARG_NAME}
    PROPERTIES ENVIRONMENT "${env}" LABELS "${ARG_LABELS}"
    DISCOVERY_TIMEOUT 30)
endfunction()

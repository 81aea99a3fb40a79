# Every script of the default skin renders through vorn-sts without a warning.
# Included by tests/CMakeLists.txt, this file registers the test; run with
# cmake -P (as the test does), it renders into a fresh temporary directory.
if(NOT CMAKE_SCRIPT_MODE_FILE)
  if(TARGET vorn-sts)
    add_test(NAME vorn_sts_default_skin
             COMMAND ${CMAKE_COMMAND} -DVORN_STS=$<TARGET_FILE:vorn-sts>
                     -DSKIN=${PROJECT_SOURCE_DIR}/assets/default/ -P ${CMAKE_CURRENT_LIST_FILE})
    # GTK and fontconfig keep allocations for the life of the process.
    set_tests_properties(vorn_sts_default_skin PROPERTIES
      ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0:abort_on_error=1;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
      TIMEOUT 300)
  endif()
  return()
endif()

if(NOT VORN_STS OR NOT SKIN)
  message(FATAL_ERROR "usage: cmake -DVORN_STS=<vorn-sts> -DSKIN=<skin dir/> -P vorn_sts.cmake")
endif()
set(tmp "$ENV{TMPDIR}")
if(NOT tmp)
  set(tmp "/tmp")
endif()
string(RANDOM LENGTH 12 suffix)
set(out "${tmp}/vorn-sts-${suffix}")
file(MAKE_DIRECTORY "${out}")
execute_process(COMMAND "${VORN_STS}" -o "${out}" "${SKIN}"
                RESULT_VARIABLE rc OUTPUT_VARIABLE stdout ERROR_VARIABLE stderr)
file(GLOB sheets "${out}/*.png")
list(LENGTH sheets count)
file(REMOVE_RECURSE "${out}")
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "vorn-sts failed (exit ${rc}):\n${stderr}\n${stdout}")
endif()
if(count EQUAL 0)
  message(FATAL_ERROR "vorn-sts wrote no sheets:\n${stdout}")
endif()
message(STATUS "vorn-sts rendered ${count} scripts of ${SKIN}")

# vorn-sts --watch follows a skin being edited.
if(TARGET vorn-sts)
  add_test(NAME vorn_sts_watch
           COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tools/sts_watch.sh $<TARGET_FILE:vorn-sts>
                   ${PROJECT_SOURCE_DIR}/assets/default)
  set_tests_properties(vorn_sts_watch PROPERTIES
    ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0:abort_on_error=1;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
    TIMEOUT 180)
endif()

# The README's first host lays out, switches language and exits by itself.
if(NOT CMAKE_SCRIPT_MODE_FILE AND TARGET vorn-firsthour)
  add_test(NAME vorn_firsthour
           COMMAND vorn-firsthour ${PROJECT_SOURCE_DIR}/assets/default/ --check)
  set_tests_properties(vorn_firsthour PROPERTIES
    PASS_REGULAR_EXPRESSION "first hour ok"
    ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0:abort_on_error=1"
    TIMEOUT 120)
endif()

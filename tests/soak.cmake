# The soak test: a seeded random run over every control family, in its own
# program so that it runs with leak checking on (the GUI suite cannot).
file(GLOB SOAK_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/soak/*.cpp)
add_executable(vorn_soak ${SOAK_SOURCES})
target_link_libraries(vorn_soak PRIVATE vorn)
target_compile_definitions(vorn_soak PRIVATE VORN_SKIN_DIR="${VORN_SKIN_DIR}")
add_test(NAME vorn_soak COMMAND vorn_soak --seed 1 --steps 10000)
# Leaks of our own code fail the run; only the system GUI libraries' life-long
# allocations are suppressed.
set_tests_properties(vorn_soak PROPERTIES TIMEOUT 60
  ENVIRONMENT "ASAN_OPTIONS=detect_leaks=1:abort_on_error=1;LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/lsan.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")

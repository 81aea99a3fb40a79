# The vornpack tool end to end: pack a tree, list it, unpack it, and refuse
# bad input. Included by tests/CMakeLists.txt.
if(TARGET vornpack)
  add_test(NAME vornpack_round_trip
           COMMAND bash ${CMAKE_CURRENT_LIST_DIR}/vornpack_test.sh $<TARGET_FILE:vornpack>)
  set_tests_properties(vornpack_round_trip PROPERTIES TIMEOUT 120)
endif()

# Debian packages built by CPack from the install rules, checked and used by
# an outside host (plain builds only, as the install check).
if(NOT VORN_SANITIZE)
  add_test(NAME vorn_debian_packages
           COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/install/check_debs.sh
                   ${PROJECT_BINARY_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/install
                   ${CMAKE_GENERATOR} ${CMAKE_CXX_COMPILER})
  set_tests_properties(vorn_debian_packages PROPERTIES TIMEOUT 300)
endif()

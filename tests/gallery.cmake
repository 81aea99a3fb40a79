# The gallery writes a drawn screenshot of every page: from the skin
# directory in English, and from a packed archive after switching to French
# through its language button (which rebuilds every page).
# Included by tests/CMakeLists.txt, this file registers the test; run with
# cmake -P (as the test does), it works in a fresh temporary directory.
if(NOT CMAKE_SCRIPT_MODE_FILE)
  if(TARGET vorn-gallery AND TARGET vornpack)
    add_test(NAME vorn_gallery_screenshots
             COMMAND ${CMAKE_COMMAND} -DGALLERY=$<TARGET_FILE:vorn-gallery>
                     -DVORNPACK=$<TARGET_FILE:vornpack>
                     -DSKIN=${PROJECT_SOURCE_DIR}/assets/default/ -P ${CMAKE_CURRENT_LIST_FILE})
    set_tests_properties(vorn_gallery_screenshots PROPERTIES
      ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0:abort_on_error=1;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
      TIMEOUT 300)
  endif()
  return()
endif()

if(NOT GALLERY OR NOT VORNPACK OR NOT SKIN)
  message(FATAL_ERROR
    "usage: cmake -DGALLERY=<vorn-gallery> -DVORNPACK=<vornpack> -DSKIN=<skin dir/> -P gallery.cmake")
endif()
set(tmp "$ENV{TMPDIR}")
if(NOT tmp)
  set(tmp "/tmp")
endif()
string(RANDOM LENGTH 12 suffix)
set(out "${tmp}/vorn-gallery-${suffix}")
file(MAKE_DIRECTORY "${out}")

function(run_gallery dir)
  execute_process(COMMAND "${GALLERY}" ${ARGN} --screenshot "${out}/${dir}"
                  RESULT_VARIABLE rc OUTPUT_VARIABLE stdout ERROR_VARIABLE stderr)
  file(GLOB shots "${out}/${dir}/*.png")
  list(LENGTH shots count)
  if(NOT rc EQUAL 0 OR count LESS 3)
    file(REMOVE_RECURSE "${out}")
    message(FATAL_ERROR "vorn-gallery ${ARGN} (exit ${rc}) wrote ${count} pages:\n${stdout}\n${stderr}")
  endif()
endfunction()

run_gallery(en --skin "${SKIN}")
execute_process(COMMAND "${VORNPACK}" create "${out}/skin1.vrk" "${SKIN}" RESULT_VARIABLE rc
                OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  file(REMOVE_RECURSE "${out}")
  message(FATAL_ERROR "vornpack could not pack ${SKIN}")
endif()
run_gallery(fr --archive "${out}/skin1.vrk" --switch-language french)

# The French labels must have changed the picture.
file(SHA256 "${out}/en/01-buttons.png" en)
file(SHA256 "${out}/fr/01-buttons.png" fr)
file(REMOVE_RECURSE "${out}")
if(en STREQUAL fr)
  message(FATAL_ERROR "the French buttons page looks exactly like the English one")
endif()
message(STATUS "vorn-gallery wrote every page, in English and in French")

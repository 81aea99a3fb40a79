# vorn-sts --check passes the default skin and, on a skin with one of each
# fault planted, fails naming every fault.
# Included by tests/CMakeLists.txt, this file registers the tests; run with
# cmake -P (as the tests do), it builds the faulty skin in a temporary directory.
if(NOT CMAKE_SCRIPT_MODE_FILE)
  if(TARGET vorn-sts)
    foreach(mode default faulty)
      add_test(NAME vorn_skincheck_${mode}
               COMMAND ${CMAKE_COMMAND} -DVORN_STS=$<TARGET_FILE:vorn-sts> -DMODE=${mode}
                       -DSKIN=${PROJECT_SOURCE_DIR}/assets/default/ -P ${CMAKE_CURRENT_LIST_FILE})
      set_tests_properties(vorn_skincheck_${mode} PROPERTIES
        ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0:abort_on_error=1;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
        TIMEOUT 300)
    endforeach()
  endif()
  return()
endif()

if(MODE STREQUAL "default")
  execute_process(COMMAND "${VORN_STS}" --check --messages messages.txt --messages gallery.txt
                          "${SKIN}"
                  RESULT_VARIABLE rc OUTPUT_VARIABLE stdout ERROR_VARIABLE stderr)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "the default skin has findings (exit ${rc}):\n${stdout}\n${stderr}")
  endif()
  message(STATUS "the default skin passes the checker")
  return()
endif()

set(tmp "$ENV{TMPDIR}")
if(NOT tmp)
  set(tmp "/tmp")
endif()
string(RANDOM LENGTH 12 suffix)
set(skin "${tmp}/vorn-skincheck-${suffix}/")
set(g "${skin}Generic")
file(WRITE "${g}/english/messages.txt" "Apply \nApply\nOnly \nEnglish \n")
file(WRITE "${g}/french/messages.txt" "Apply \nAppliquer \n")
file(WRITE "${g}/colours.txt"
     "bg 1 2 3\npink 1 1 1\nred 1 1 1\nblue 1 1 1\npurple 1 1 1\nbrown 1 1 1\n"
     "green 1 1 1\norange 1 1 1\nlightblue 1 1 1\n")
file(WRITE "${g}/fonts.txt" "label 9 swiss normal normal\n")
file(COPY "${SKIN}Generic/push_body.png" DESTINATION "${g}")
file(WRITE "${g}/states.sts"
     "size rgba 4 4\nclear nocolour\nmap push_body.png bg\nsetalphafromgrey gone.png\nassign off\nfinish\n")
file(WRITE "${g}/field.sts" "size rgba 4 4\nclear bg\nedit 0 0 4 4 bg bg nofont\nassign image\nfinish\n")
foreach(s off up down)
  file(WRITE "${g}/plenth_scroll_${s}.sts" "size rgba 1 1\nclear bg\nassign image\nfinish\n")
endforeach()

execute_process(COMMAND "${VORN_STS}" --check "${skin}"
                RESULT_VARIABLE rc OUTPUT_VARIABLE stdout ERROR_VARIABLE stderr)
file(REMOVE_RECURSE "${skin}")
message(STATUS "${stdout}")
if(NOT rc EQUAL 1)
  message(FATAL_ERROR "the faulty skin gave exit ${rc}, not 1:\n${stdout}\n${stderr}")
endif()
foreach(expected
    "Generic/english/messages.txt:2: last character 'y' is dropped by the loader"
    "Generic/french/messages.txt: key \"Only\" is not translated"
    "states.sts:2: colour \"nocolour\" is not in the colour database"
    "states.sts:3: picture push_body.png is 32x32 but the script is 4x4"
    "states.sts:4: picture gone.png is missing"
    "field.sts:3: font \"nofont\" is not in the font database"
    "states.sts: does not parse")
  string(FIND "${stdout}" "${expected}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the checker did not report: ${expected}\nIt reported:\n${stdout}")
  endif()
endforeach()
message(STATUS "the checker named every planted fault")

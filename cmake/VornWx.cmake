# Creates the imported target Vorn::wx from wx-config: the toolkit and the
# host layer both need the same wxWidgets flags, and so does any program that
# links against them after installation.
if(NOT TARGET Vorn::wx)
  find_program(VORN_WX_CONFIG NAMES wx-config REQUIRED)
  execute_process(COMMAND ${VORN_WX_CONFIG} --cxxflags
                  OUTPUT_VARIABLE _vorn_wx_cxx OUTPUT_STRIP_TRAILING_WHITESPACE
                  RESULT_VARIABLE _vorn_wx_rc)
  if(NOT _vorn_wx_rc EQUAL 0)
    message(FATAL_ERROR "wx-config --cxxflags failed")
  endif()
  execute_process(COMMAND ${VORN_WX_CONFIG} --libs gl,core,base
                  OUTPUT_VARIABLE _vorn_wx_libs OUTPUT_STRIP_TRAILING_WHITESPACE)
  separate_arguments(_vorn_wx_cxx UNIX_COMMAND "${_vorn_wx_cxx}")
  separate_arguments(_vorn_wx_libs UNIX_COMMAND "${_vorn_wx_libs}")
  set(_inc "")
  set(_def "")
  set(_opt "")
  foreach(f IN LISTS _vorn_wx_cxx)
    if(f MATCHES "^-I(.*)")
      list(APPEND _inc "${CMAKE_MATCH_1}")
    elseif(f MATCHES "^-D(.*)")
      list(APPEND _def "${CMAKE_MATCH_1}")
    else()
      list(APPEND _opt "${f}")
    endif()
  endforeach()
  add_library(Vorn::wx INTERFACE IMPORTED)
  set_target_properties(Vorn::wx PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${_inc}"
    INTERFACE_COMPILE_DEFINITIONS "${_def}"
    INTERFACE_COMPILE_OPTIONS "${_opt}"
    INTERFACE_LINK_LIBRARIES "${_vorn_wx_libs}")
endif()

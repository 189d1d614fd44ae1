# The platform as two interface targets, GNUstep::Base and GNUstep::Gui, from
# gnustep-config's answers. Its headers are system headers, so that our own
# warnings stay errors while the platform's stay silent.

find_program(GNUSTEP_CONFIG gnustep-config REQUIRED)

function(ov_gnustep_query out)
  execute_process(COMMAND ${GNUSTEP_CONFIG} ${ARGN}
    OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${out} "${answer}" PARENT_SCOPE)
endfunction()

# The Objective-C run time's own headers and library lie in GCC's folder.
find_program(OV_GCC gcc REQUIRED)
execute_process(COMMAND ${OV_GCC} ${OV_MACHINE_FLAGS} -print-file-name=include
  OUTPUT_VARIABLE OV_GCC_INCLUDE_DIR OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(OV_GCC_LIB_DIR "${OV_GCC_INCLUDE_DIR}" DIRECTORY)

function(_ov_import_gnustep target flags_query libs_query)
  ov_gnustep_query(flags ${flags_query})
  ov_gnustep_query(libs ${libs_query})
  if(NOT flags OR NOT libs)
    message(FATAL_ERROR "${GNUSTEP_CONFIG} ${flags_query} answers nothing; it needs \"make\" for that")
  endif()
  separate_arguments(flags)
  separate_arguments(libs)
  set(defines "")
  set(includes "")
  foreach(flag IN LISTS flags)
    if(flag MATCHES "^-D(.+)$")
      list(APPEND defines ${CMAKE_MATCH_1})
    elseif(flag MATCHES "^-I(/.+)$")
      if(IS_DIRECTORY "${CMAKE_MATCH_1}")
        list(APPEND includes ${CMAKE_MATCH_1})
      endif()
    endif()
  endforeach()
  list(REMOVE_DUPLICATES defines)
  set(links "")
  foreach(lib IN LISTS libs)
    if(lib MATCHES "^-L(.+)$")
      # A user's private folder that does not exist would only draw warnings.
      if(IS_DIRECTORY "${CMAKE_MATCH_1}")
        list(APPEND links ${lib})
      endif()
    elseif(lib MATCHES "^-l" OR lib STREQUAL "-pthread")
      list(APPEND links ${lib})
    endif()
  endforeach()
  # Spelt as options, so that the order of the folders is the one given here.
  list(TRANSFORM includes PREPEND "SHELL:-isystem " OUTPUT_VARIABLE system_includes)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  set_target_properties(${target} PROPERTIES
    INTERFACE_COMPILE_DEFINITIONS "${defines}"
    INTERFACE_COMPILE_OPTIONS
      "$<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:-fgnu-runtime;-fconstant-string-class=NSConstantString;-fobjc-exceptions;-fexceptions;-fno-strict-aliasing;-pthread;${system_includes};SHELL:-idirafter ${OV_GCC_INCLUDE_DIR}>"
    INTERFACE_LINK_OPTIONS "-L${OV_GCC_LIB_DIR};-pthread"
    INTERFACE_LINK_LIBRARIES "${links}")
endfunction()

_ov_import_gnustep(GNUstep::Base --objc-flags --base-libs)
_ov_import_gnustep(GNUstep::Gui --objc-flags --gui-libs)

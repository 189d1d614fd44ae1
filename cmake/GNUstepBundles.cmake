include(InstallFrameworks)

# ov_add_framework(NAME SOURCES a.mm … HEADERS a.h … [RESOURCES r …] [PCH h] LINK lib …)
#
# Builds NAME.framework in the platform's own layout below
# ${CMAKE_BINARY_DIR}/Frameworks and its installation rules:
#
#   NAME.framework/Versions/A/NAME -> libNAME.so -> libNAME.so.0 -> libNAME.so.0.0.1
#                            /Headers  /Resources/Info-gnustep.plist
#                 /Versions/Current -> A
#                 /NAME, /libNAME.so, /Headers, /Resources -> into Versions/Current

function(ov_add_framework NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;HEADERS;RESOURCES;PCH;LINK;PRIVATE_LINK" ${ARGN})
  set(framework ${CMAKE_BINARY_DIR}/Frameworks/${NAME}.framework)
  set(version ${framework}/Versions/A)
  set(generated ${CMAKE_BINARY_DIR}/generated/${NAME})
  list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE sources)
  list(TRANSFORM ARG_HEADERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE headers)

  list(JOIN sources "|" joined_sources)
  list(JOIN headers "|" joined_headers)
  set(describe ${CMAKE_COMMAND} -DNAME=${NAME} -DOUTPUT=${generated}
    -DSOURCES=${joined_sources} -DHEADERS=${joined_headers}
    -P ${PROJECT_SOURCE_DIR}/cmake/FrameworkClass.cmake)
  execute_process(COMMAND ${describe} COMMAND_ERROR_IS_FATAL ANY)
  add_custom_command(
    OUTPUT ${generated}/described
    BYPRODUCTS ${generated}/NSFramework_${NAME}.mm ${generated}/${NAME}.exports
      ${generated}/Info-gnustep.plist
    COMMAND ${describe}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${version}/Resources
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${generated}/Info-gnustep.plist ${version}/Resources/
    COMMAND ${CMAKE_COMMAND} -E touch ${generated}/described
    DEPENDS ${sources} ${headers} ${PROJECT_SOURCE_DIR}/cmake/FrameworkClass.cmake
    COMMENT "Describing ${NAME}.framework" VERBATIM)
  add_custom_target(${NAME}Description DEPENDS ${generated}/described)

  # Among the sources, so that resources that are made by the build are made before.
  add_library(${NAME} SHARED ${sources} ${generated}/NSFramework_${NAME}.mm ${ARG_RESOURCES})
  add_dependencies(${NAME} ${NAME}Description)
  set_target_properties(${NAME} PROPERTIES
    VERSION 0.0.1 SOVERSION 0
    LINKER_LANGUAGE CXX  # CMake 3.25 gives Objective-C++ libraries no SONAME
    LIBRARY_OUTPUT_DIRECTORY ${version}
    # Sibling frameworks lie in one folder, in the build tree and wherever they
    # are installed or carried.
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH "$ORIGIN/../../../OvFoundation.framework/Versions/A"
    CXX_VISIBILITY_PRESET hidden OBJCXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    LINK_DEPENDS ${generated}/${NAME}.exports)
  target_link_options(${NAME} PRIVATE LINKER:--version-script=${generated}/${NAME}.exports)
  target_link_libraries(${NAME} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK} ov_warnings)
  target_include_directories(${NAME}
    PUBLIC $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/include>
    PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  if(ARG_PCH)
    # <string> must be in the precompiled header: read after one, it fails on the
    # compiler's own va_list type.
    list(PREPEND ARG_PCH <string>)
    list(TRANSFORM ARG_PCH REPLACE "^(.+)$" "$<$<COMPILE_LANGUAGE:OBJCXX>:\\1>")
    target_precompile_headers(${NAME} PRIVATE ${ARG_PCH})
  endif()

  # In the build tree the framework's headers and resources are links to the
  # sources, so that an edit is seen at once.
  file(MAKE_DIRECTORY ${version}/Headers ${version}/Resources ${CMAKE_BINARY_DIR}/include)
  foreach(header IN LISTS headers)
    get_filename_component(file ${header} NAME)
    file(CREATE_LINK ${header} ${version}/Headers/${file} SYMBOLIC)
  endforeach()
  foreach(resource IN LISTS ARG_RESOURCES)
    get_filename_component(file ${resource} NAME)
    file(CREATE_LINK ${resource} ${version}/Resources/${file} SYMBOLIC)
  endforeach()
  configure_file(${generated}/Info-gnustep.plist ${version}/Resources/Info-gnustep.plist COPYONLY)
  file(CREATE_LINK A ${framework}/Versions/Current SYMBOLIC)
  file(CREATE_LINK lib${NAME}.so ${version}/${NAME} SYMBOLIC)
  foreach(pair IN ITEMS ./Versions/Current/${NAME}:${NAME} ./Versions/Current/lib${NAME}.so:lib${NAME}.so
      Versions/Current/Headers:Headers Versions/Current/Resources:Resources)
    string(REPLACE ":" ";" pair ${pair})
    list(GET pair 0 destination)
    list(GET pair 1 name)
    file(CREATE_LINK ${destination} ${framework}/${name} SYMBOLIC)
  endforeach()
  file(CREATE_LINK ${version}/Headers ${CMAKE_BINARY_DIR}/include/${NAME} SYMBOLIC)
  set_target_properties(${NAME} PROPERTIES OV_HEADERS "${headers}" OV_RESOURCES "${ARG_RESOURCES}")
  ov_install_framework(${NAME})
endfunction()

# ov_add_application(TARGET NAME Name INFO Info-gnustep.plist SOURCES a.mm … [RESOURCES r …] LINK lib …)
#
# Builds ${CMAKE_BINARY_DIR}/Name.app, which the platform takes for the main bundle: the
# program Name.app/Name, and Name.app/Resources. It runs on the build's frameworks.

function(ov_add_application TARGET)
  cmake_parse_arguments(ARG "" "NAME;INFO" "SOURCES;RESOURCES;LINK" ${ARGN})
  set(application ${CMAKE_BINARY_DIR}/${ARG_NAME}.app)
  # Among the sources, so that resources that are made by the build are made before.
  add_executable(${TARGET} ${ARG_SOURCES} ${ARG_RESOURCES})
  set_target_properties(${TARGET} PROPERTIES
    OUTPUT_NAME ${ARG_NAME}
    LINKER_LANGUAGE CXX
    RUNTIME_OUTPUT_DIRECTORY ${application}
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH "$ORIGIN/../Frameworks/OvAppKit.framework/Versions/A;$ORIGIN/../Frameworks/OvFoundation.framework/Versions/A")
  target_include_directories(${TARGET} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${TARGET} PRIVATE ${ARG_LINK} ov_warnings)
  file(MAKE_DIRECTORY ${application}/Resources)
  configure_file(${ARG_INFO} ${application}/Resources/Info-gnustep.plist COPYONLY)
  foreach(resource IN LISTS ARG_RESOURCES)
    get_filename_component(file ${resource} NAME)
    get_filename_component(resource ${resource} ABSOLUTE)
    file(CREATE_LINK ${resource} ${application}/Resources/${file} SYMBOLIC)
  endforeach()
endfunction()

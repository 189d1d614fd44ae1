# Where the frameworks go and what finds them there. By default below any prefix:
#
#   lib/GNUstep/Frameworks/X.framework    the framework in the platform's layout
#   include/GNUstep/X                     a link to its Headers, for <X/X.h>
#   lib/libX.so, libX.so.0, …             links to its library
#   lib/pkgconfig/x.pc                    for hosts built with pkg-config
#   lib/cmake/OvAppKit/                   for hosts built with CMake
#
# With OV_INSTALL_DOMAIN=LOCAL (USER, SYSTEM, NETWORK) in the folders of that
# GNUstep domain instead, where the platform's own tools look.

set(OV_INSTALL_DOMAIN "" CACHE STRING "GNUstep domain to install in (LOCAL, USER, SYSTEM, NETWORK), or empty for the prefix")
if(OV_INSTALL_DOMAIN)
  ov_gnustep_query(domain_library --variable=GNUSTEP_${OV_INSTALL_DOMAIN}_LIBRARY)
  ov_gnustep_query(OV_INSTALL_HEADERS --variable=GNUSTEP_${OV_INSTALL_DOMAIN}_HEADERS)
  ov_gnustep_query(OV_INSTALL_LIBRARIES --variable=GNUSTEP_${OV_INSTALL_DOMAIN}_LIBRARIES)
  if(NOT IS_ABSOLUTE "${domain_library}")
    message(FATAL_ERROR "gnustep-config knows no domain \"${OV_INSTALL_DOMAIN}\"")
  endif()
  set(OV_INSTALL_FRAMEWORKS ${domain_library}/Frameworks)
else()
  set(OV_INSTALL_FRAMEWORKS lib/GNUstep/Frameworks)
  set(OV_INSTALL_HEADERS include/GNUstep)
  set(OV_INSTALL_LIBRARIES lib)
endif()
set(OV_INSTALL_PKGCONFIG ${OV_INSTALL_LIBRARIES}/pkgconfig)
set(OV_INSTALL_CMAKE ${OV_INSTALL_LIBRARIES}/cmake/OvAppKit)

# _ov_relative(OUT FROM TO): the way from one installed folder to another, the
# same wherever the whole is moved.
function(_ov_relative out from to)
  foreach(folder IN ITEMS from to)
    cmake_path(ABSOLUTE_PATH ${folder} BASE_DIRECTORY /prefix NORMALIZE)
  endforeach()
  file(RELATIVE_PATH relative ${from} ${to})
  set(${out} ${relative} PARENT_SCOPE)
endfunction()

# _ov_install_link(TARGET FOLDER NAME): installs the link FOLDER/NAME -> TARGET.
function(_ov_install_link target folder name)
  string(MD5 place ${folder})
  set(link ${CMAKE_BINARY_DIR}/generated/links/${place}/${name})
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/generated/links/${place})
  file(CREATE_LINK ${target} ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION ${folder})
endfunction()

# ov_install_framework(NAME): one framework, its links and its packages.
function(ov_install_framework NAME)
  set(framework ${OV_INSTALL_FRAMEWORKS}/${NAME}.framework)
  set(version ${framework}/Versions/A)
  get_target_property(headers ${NAME} OV_HEADERS)
  get_target_property(resources ${NAME} OV_RESOURCES)
  install(TARGETS ${NAME} EXPORT ${NAME}Targets LIBRARY DESTINATION ${version})
  target_include_directories(${NAME} INTERFACE $<INSTALL_INTERFACE:${OV_INSTALL_HEADERS}>)
  # CMake takes it for a framework of another system, whose run path would be the
  # folder around it.
  cmake_path(ABSOLUTE_PATH version BASE_DIRECTORY "$<INSTALL_PREFIX>" OUTPUT_VARIABLE run_path)
  target_link_options(${NAME} INTERFACE $<INSTALL_INTERFACE:LINKER:-rpath,${run_path}>)
  install(FILES ${headers} DESTINATION ${version}/Headers)
  install(FILES ${resources} ${CMAKE_BINARY_DIR}/generated/${NAME}/Info-gnustep.plist
    DESTINATION ${version}/Resources)

  _ov_install_link(lib${NAME}.so ${version} ${NAME})
  _ov_install_link(A ${framework}/Versions Current)
  _ov_install_link(Versions/Current/Headers ${framework} Headers)
  _ov_install_link(Versions/Current/Resources ${framework} Resources)
  _ov_install_link(./Versions/Current/${NAME} ${framework} ${NAME})
  _ov_install_link(./Versions/Current/lib${NAME}.so ${framework} lib${NAME}.so)

  _ov_relative(to_headers ${OV_INSTALL_HEADERS} ${framework}/Headers)
  _ov_install_link(${to_headers} ${OV_INSTALL_HEADERS} ${NAME})
  get_target_property(full_version ${NAME} VERSION)
  get_target_property(major_version ${NAME} SOVERSION)
  _ov_relative(to_library ${OV_INSTALL_LIBRARIES} ${version})
  foreach(suffix IN ITEMS "" .${major_version} .${full_version})
    _ov_install_link(${to_library}/lib${NAME}.so${suffix} ${OV_INSTALL_LIBRARIES} lib${NAME}.so${suffix})
  endforeach()

  # The two packages below find everything else from where they lie themselves.
  _ov_relative(FRAMEWORKS_FROM_PKGCONFIG ${OV_INSTALL_PKGCONFIG} ${OV_INSTALL_FRAMEWORKS})
  _ov_relative(HEADERS_FROM_PKGCONFIG ${OV_INSTALL_PKGCONFIG} ${OV_INSTALL_HEADERS})
  string(TOLOWER ${NAME} package)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/${package}.pc.in
    ${CMAKE_BINARY_DIR}/generated/${package}.pc @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/generated/${package}.pc DESTINATION ${OV_INSTALL_PKGCONFIG})
  install(EXPORT ${NAME}Targets NAMESPACE ${NAME}:: DESTINATION ${OV_INSTALL_CMAKE})
endfunction()

# The platform's flags as pkg-config writes them.
get_target_property(definitions GNUstep::Base INTERFACE_COMPILE_DEFINITIONS)
list(FILTER definitions EXCLUDE REGEX "^GS(WARN|DIAGNOSE)$")  # the platform's own debugging
list(TRANSFORM definitions PREPEND -D)
list(JOIN definitions " " PLATFORM_DEFINITIONS)
ov_gnustep_query(PLATFORM_HEADERS --variable=GNUSTEP_SYSTEM_HEADERS)

include(CMakePackageConfigHelpers)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/generated/OvAppKitConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES packaging/OvAppKitConfig.cmake cmake/GNUstep.cmake
    ${CMAKE_BINARY_DIR}/generated/OvAppKitConfigVersion.cmake
  DESTINATION ${OV_INSTALL_CMAKE})

# ov_add_artwork(OUT SOURCES resources/Name.svg … [FORMAT tiff|png] [FINER])
#
# Draws pictures, which are kept as SVG, in the size that each one states; with FINER also with
# twice as many pixels each way, for finer screens. OUT receives the paths of the results,
# Name.tiff or Name.png (and Name@2x.tiff), for RESOURCES of ov_add_framework or
# ov_add_application in the same folder.

if(NOT TARGET ov_draw_artwork)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(GDK_PIXBUF REQUIRED IMPORTED_TARGET gdk-pixbuf-2.0)
  add_executable(ov_draw_artwork ${CMAKE_CURRENT_LIST_DIR}/artwork/DrawArtwork.cpp)
  target_link_libraries(ov_draw_artwork PRIVATE PkgConfig::GDK_PIXBUF)
endif()

function(ov_add_artwork OUT)
  cmake_parse_arguments(ARG "FINER" "FORMAT" "SOURCES" ${ARGN})
  set(scales 1)
  if(ARG_FINER)
    set(scales 1 2)
  endif()
  if(NOT ARG_FORMAT)
    set(ARG_FORMAT tiff)
  endif()
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/artwork)
  file(MAKE_DIRECTORY ${folder})
  set(results "")
  foreach(source IN LISTS ARG_SOURCES)
    get_filename_component(name ${source} NAME_WE)
    set(svg ${CMAKE_CURRENT_SOURCE_DIR}/${source})
    foreach(scale IN LISTS scales)
      set(suffix "")
      if(scale GREATER 1)
        set(suffix "@${scale}x")
      endif()
      set(result ${folder}/${name}${suffix}.${ARG_FORMAT})
      add_custom_command(OUTPUT ${result}
        # The sanitizers' leak report would fail the build; the picture libraries keep caches.
        COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
          $<TARGET_FILE:ov_draw_artwork> ${svg} ${result} ${ARG_FORMAT} ${scale}
        DEPENDS ${svg} ov_draw_artwork
        COMMENT "Drawing ${name}${suffix}.${ARG_FORMAT}" VERBATIM)
      list(APPEND results ${result})
    endforeach()
  endforeach()
  set(${OUT} ${results} PARENT_SCOPE)
endfunction()

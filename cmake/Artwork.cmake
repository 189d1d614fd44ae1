# ov_add_artwork(OUT SOURCES resources/Name.svg … [FORMAT tiff|png] [FINER])
#
# Draws pictures, which are kept as SVG, in the size that each one states; with FINER also with
# twice as many pixels each way, for finer screens. OUT receives the paths of the results,
# Name.tiff or Name.png (and Name@2x.tiff), for RESOURCES of ov_add_framework or
# ov_add_application in the same folder.
#
# A source with views is a sheet, and only its views are pictures. A view stands on one line:
#
#   <view id="Name" viewBox="X Y WIDTH HEIGHT"/>
#       that part of the sheet, in whole units of its own size
#   <view id="Name" viewBox="X Y WIDTH HEIGHT" data-turned-tiles="3"/>
#       the same in so many tiles from left to right, each mirrored at its falling diagonal
#   <view id="Name" viewBox="X Y WIDTH HEIGHT" data-caps="LEFT TOP"/>
#       nine pictures: Name, the middle, and Name-left, Name-right-top and so on, with caps as
#       wide and high as told on all four sides

if(NOT TARGET ov_draw_artwork)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(GDK_PIXBUF REQUIRED IMPORTED_TARGET gdk-pixbuf-2.0)
  add_executable(ov_draw_artwork ${CMAKE_CURRENT_LIST_DIR}/artwork/DrawArtwork.cpp)
  target_link_libraries(ov_draw_artwork PRIVATE PkgConfig::GDK_PIXBUF)
endif()

# The pictures of a source, as "Name=X Y WIDTH HEIGHT…" or "Name=whole".
function(_ov_artwork_pieces SVG OUT)
  # A new view is a new result.
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${SVG})
  file(STRINGS ${SVG} lines REGEX "<view ")
  set(pieces "")
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "^ *<view id=\"([^\"=;]+)\" viewBox=\"([0-9]+) ([0-9]+) ([0-9]+) ([0-9]+)\"(.*)/>$")
      message(FATAL_ERROR "${SVG}: this is no view as artwork has them:\n${line}")
    endif()
    set(name ${CMAKE_MATCH_1})
    set(x ${CMAKE_MATCH_2})
    set(y ${CMAKE_MATCH_3})
    set(width ${CMAKE_MATCH_4})
    set(height ${CMAKE_MATCH_5})
    set(option "${CMAKE_MATCH_6}")
    if(option STREQUAL "")
      list(APPEND pieces "${name}=${x} ${y} ${width} ${height}")
    elseif(option MATCHES "^ data-turned-tiles=\"([0-9]+)\"$")
      list(APPEND pieces "${name}=${x} ${y} ${width} ${height} ${CMAKE_MATCH_1}")
    elseif(option MATCHES "^ data-caps=\"([0-9]+) ([0-9]+)\"$")
      set(left ${CMAKE_MATCH_1})
      set(top ${CMAKE_MATCH_2})
      math(EXPR middle_x "${x} + ${left}")
      math(EXPR middle_y "${y} + ${top}")
      math(EXPR middle_width "${width} - 2 * ${left}")
      math(EXPR middle_height "${height} - 2 * ${top}")
      math(EXPR right "${x} + ${width} - ${left}")
      math(EXPR bottom "${y} + ${height} - ${top}")
      list(APPEND pieces
        "${name}=${middle_x} ${middle_y} ${middle_width} ${middle_height}"
        "${name}-left=${x} ${middle_y} ${left} ${middle_height}"
        "${name}-right=${right} ${middle_y} ${left} ${middle_height}"
        "${name}-top=${middle_x} ${y} ${middle_width} ${top}"
        "${name}-bottom=${middle_x} ${bottom} ${middle_width} ${top}"
        "${name}-left-top=${x} ${y} ${left} ${top}"
        "${name}-right-top=${right} ${y} ${left} ${top}"
        "${name}-left-bottom=${x} ${bottom} ${left} ${top}"
        "${name}-right-bottom=${right} ${bottom} ${left} ${top}")
    else()
      message(FATAL_ERROR "${SVG}: artwork has no such option of a view:\n${line}")
    endif()
  endforeach()
  if(NOT pieces)
    get_filename_component(name ${SVG} NAME_WE)
    set(pieces "${name}=whole")
  endif()
  set(${OUT} "${pieces}" PARENT_SCOPE)
endfunction()

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
  set(all_results "")
  foreach(source IN LISTS ARG_SOURCES)
    set(svg ${CMAKE_CURRENT_SOURCE_DIR}/${source})
    _ov_artwork_pieces(${svg} pieces)
    foreach(scale IN LISTS scales)
      set(suffix "")
      if(scale GREATER 1)
        set(suffix "@${scale}x")
      endif()
      set(results "")
      set(arguments "")
      foreach(piece IN LISTS pieces)
        string(REGEX MATCH "^([^=]+)=(.*)$" piece "${piece}")
        set(result "${folder}/${CMAKE_MATCH_1}${suffix}.${ARG_FORMAT}")
        list(APPEND results "${result}")
        list(APPEND arguments "${result}" "${CMAKE_MATCH_2}")
      endforeach()
      add_custom_command(OUTPUT ${results}
        # The sanitizers' leak report would fail the build; the picture libraries keep caches.
        COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
          $<TARGET_FILE:ov_draw_artwork> ${svg} ${ARG_FORMAT} ${scale} ${arguments}
        DEPENDS ${svg} ov_draw_artwork
        COMMENT "Drawing ${source}${suffix}" VERBATIM)
      list(APPEND all_results ${results})
    endforeach()
  endforeach()
  set(${OUT} ${all_results} PARENT_SCOPE)
endfunction()

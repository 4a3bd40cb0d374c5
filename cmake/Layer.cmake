# tavrelkin_layer(NAME FOLDER folder [PRIVATE_FOLDERS folders ...] SOURCES ... [USES layers ...]
#   [PRIVATE_LIBRARIES libraries ...] [PRECOMPILED headers ...])
#
# One static library for one folder below src/. Includes are written from src/ ("runtime/core/drawing/Color.h"), but
# src/ itself is on no include path: each layer sees a folder of links to what is its own and to the layers that it
# USES, so that an include that goes upwards, or past a layer, does not compile. The links to its PRIVATE_FOLDERS stand
# in a folder of their own, which the layers above do not see. The compiler reads the PRECOMPILED headers once for all
# sources of the layer, which saves time; each source includes what it needs all the same.
function(tavrelkin_layer name)
  cmake_parse_arguments(LAYER "" "FOLDER" "PRIVATE_FOLDERS;SOURCES;USES;PRIVATE_LIBRARIES;PRECOMPILED" ${ARGN})
  add_library(${name} STATIC ${LAYER_SOURCES})

  set(source "${CMAKE_SOURCE_DIR}/src/${LAYER_FOLDER}")
  set(public "${CMAKE_BINARY_DIR}/layers/${name}")
  set(private "${public}.private")
  # Links of an earlier run may lead to what has become private.
  file(REMOVE_RECURSE "${public}" "${private}")
  file(MAKE_DIRECTORY "${public}/${LAYER_FOLDER}" "${private}/${LAYER_FOLDER}")
  file(GLOB entries LIST_DIRECTORIES true CONFIGURE_DEPENDS RELATIVE "${source}" "${source}/*")
  foreach(entry IN LISTS entries)
    set(view "${public}")
    if(entry IN_LIST LAYER_PRIVATE_FOLDERS)
      set(view "${private}")
    endif()
    file(CREATE_LINK "${source}/${entry}" "${view}/${LAYER_FOLDER}/${entry}" SYMBOLIC)
  endforeach()

  target_include_directories(${name} PUBLIC "${public}" PRIVATE "${private}")
  # Debuggers and coverage reports name the files, not the links. A released program has no such paths.
  foreach(view IN ITEMS "${public}" "${private}")
    target_compile_options(${name} PUBLIC
      "$<$<NOT:$<CONFIG:Release>>:-ffile-prefix-map=${view}/=${CMAKE_SOURCE_DIR}/src/>")
  endforeach()
  target_link_libraries(${name} PUBLIC ${LAYER_USES} PRIVATE ${LAYER_PRIVATE_LIBRARIES})
  target_precompile_headers(${name} PRIVATE ${LAYER_PRECOMPILED})
endfunction()

# tavrelkin_sees_inside(target scope layer [SOURCES sources ...]): the target sees the layer's private folders, too, and
# so does what links the target where the scope is PUBLIC. With SOURCES, only these of its sources do. Meant for tests
# and tools; where a layer does so, its CMakeLists.txt says why.
function(tavrelkin_sees_inside target scope layer)
  cmake_parse_arguments(SEES "" "" "SOURCES" ${ARGN})
  set(private "${CMAKE_BINARY_DIR}/layers/${layer}.private")
  if(SEES_SOURCES)
    set_property(SOURCE ${SEES_SOURCES} APPEND PROPERTY INCLUDE_DIRECTORIES "${private}")
  else()
    target_include_directories(${target} ${scope} "${private}")
  endif()
endfunction()

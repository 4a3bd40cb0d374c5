# tavrelkin_layer(NAME FOLDER folder SOURCES ... [USES layers ...] [PRIVATE_LIBRARIES libraries ...])
#
# One static library for one folder below src/. Includes are written from src/ ("runtime/core/drawing/Color.h"), but src/
# itself is on no include path: each layer sees a folder of links to itself and to the layers that it USES, so that an
# include that goes upwards, or past a layer, does not compile.
function(tavrelkin_layer name)
  cmake_parse_arguments(LAYER "" "FOLDER" "SOURCES;USES;PRIVATE_LIBRARIES" ${ARGN})
  add_library(${name} STATIC ${LAYER_SOURCES})

  set(view "${CMAKE_BINARY_DIR}/layers/${name}")
  cmake_path(GET LAYER_FOLDER PARENT_PATH above)
  file(MAKE_DIRECTORY "${view}/${above}")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/src/${LAYER_FOLDER}" "${view}/${LAYER_FOLDER}" SYMBOLIC)
  target_include_directories(${name} PUBLIC "${view}")

  target_link_libraries(${name} PUBLIC ${LAYER_USES} PRIVATE ${LAYER_PRIVATE_LIBRARIES})
endfunction()

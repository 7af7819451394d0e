# Skin images: SVG drawings in, one Qt binary resource file out.
#
#   ombrin_skin_image(<list> NAME <name> SOURCE <file.svg | file.svg.in> [SET <VAR> <value> ...])
#
# appends the image ":/<name>" to <list>. A source that ends in .in is a template: every @VAR@ in it
# is replaced with its value, so that all states of one shape come from one drawing.
#
#   ombrin_skin_flat_image(<list> NAME <name> WIDTH <w> HEIGHT <h> COLOR <#rrggbb | #rrggbbaa>)
#
# appends a picture of one colour, for skins in which a test must tell the pieces apart.
#
#   ombrin_add_skin_resource(TARGET <target> OUTPUT <file.res> IMAGES <image> ...)
#
# renders the images at one, two and three pixels per SVG unit, packs them with rcc and adds <target>
# to the default build. <file.res> is what QResource::registerResource() takes. An image keeps
# exactly the name it was given; its densities are called NAME@2x and NAME@3x, or NAME@2x.png where
# the name ends in .png, which is also where QIcon looks for them. Only what depends on an edited
# drawing is rendered again.
#
#   set(images)
#   foreach(state IN ITEMS normal hover)
#     ombrin_skin_image(images NAME arrow_${state} SOURCE arrow.svg.in SET STATE ${state})
#   endforeach()
#   ombrin_add_skin_resource(TARGET my_skin OUTPUT ${CMAKE_BINARY_DIR}/my.res IMAGES ${images})

include_guard(GLOBAL)

set(OMBRIN_SKIN_DENSITIES 1 2 3)

find_program(OMBRIN_RSVG_CONVERT rsvg-convert
  DOC "Renders the skin's SVG drawings" NO_CMAKE_FIND_ROOT_PATH)
if(NOT OMBRIN_RSVG_CONVERT)
  message(FATAL_ERROR
    "rsvg-convert, which renders the skin's images, was not found. "
    "Install it (Debian package: librsvg2-bin) or set OMBRIN_RSVG_CONVERT to its path.")
endif()

# rcc runs on the building machine; a cross compiler's Qt package brings the one to use.
function(_ombrin_skin_find_rcc result)
  foreach(candidate IN ITEMS Qt${QT_VERSION_MAJOR}::rcc Qt6::rcc Qt5::rcc)
    if(TARGET ${candidate})
      set(${result} ${candidate} PARENT_SCOPE)
      return()
    endif()
  endforeach()
  message(FATAL_ERROR "Find Qt's Core component before adding a skin: its rcc packs the images.")
endfunction()

# The name under which one density of an image stands in the resource file.
function(_ombrin_skin_density_name result name density)
  if(density EQUAL 1)
    set(${result} "${name}" PARENT_SCOPE)
  elseif(name MATCHES "^(.*)\\.png$")
    set(${result} "${CMAKE_MATCH_1}@${density}x.png" PARENT_SCOPE)
  else()
    set(${result} "${name}@${density}x" PARENT_SCOPE)
  endif()
endfunction()

function(_ombrin_skin_require prefix)
  foreach(argument IN LISTS ARGN)
    if("${${prefix}_${argument}}" STREQUAL "")
      message(FATAL_ERROR "A skin image or resource needs a value for ${argument}.")
    endif()
  endforeach()
  if(${prefix}_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "Unknown skin arguments: ${${prefix}_UNPARSED_ARGUMENTS}")
  endif()
endfunction()

function(ombrin_skin_image list)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;SOURCE" "SET")
  _ombrin_skin_require(arg NAME SOURCE)
  get_filename_component(source "${arg_SOURCE}" ABSOLUTE BASE_DIR "${CMAKE_CURRENT_SOURCE_DIR}")
  if(NOT EXISTS "${source}")
    message(FATAL_ERROR "The drawing of the skin image ${arg_NAME} does not exist: ${source}")
  endif()
  if(source MATCHES "\\.in$")
    set(variables "${arg_SET}")
    while(NOT variables STREQUAL "")
      list(POP_FRONT variables variable value)
      set(${variable} "${value}")
    endwhile()
    set(drawing "${CMAKE_CURRENT_BINARY_DIR}/svg/${arg_NAME}.svg")
    configure_file("${source}" "${drawing}" @ONLY)
  else()
    set(drawing "${source}")
  endif()
  set(${list} ${${list}} "${arg_NAME}|${drawing}" PARENT_SCOPE)
endfunction()

function(ombrin_skin_flat_image list)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;WIDTH;HEIGHT;COLOR" "")
  _ombrin_skin_require(arg NAME WIDTH HEIGHT COLOR)
  set(drawing "${CMAKE_CURRENT_BINARY_DIR}/svg/${arg_NAME}.svg")
  file(CONFIGURE OUTPUT "${drawing}" @ONLY CONTENT
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"@arg_WIDTH@\" height=\"@arg_HEIGHT@\"\
><rect width=\"@arg_WIDTH@\" height=\"@arg_HEIGHT@\" fill=\"@arg_COLOR@\"/></svg>\n")
  set(${list} ${${list}} "${arg_NAME}|${drawing}" PARENT_SCOPE)
endfunction()

function(ombrin_add_skin_resource)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "TARGET;OUTPUT" "IMAGES")
  _ombrin_skin_require(arg TARGET OUTPUT IMAGES)
  _ombrin_skin_find_rcc(rcc)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${arg_TARGET}.dir")
  file(MAKE_DIRECTORY "${folder}")

  set(entries "")
  set(pictures "")
  foreach(image IN LISTS arg_IMAGES)
    string(REGEX MATCH "^([^|]+)\\|(.+)$" matched "${image}")
    set(name "${CMAKE_MATCH_1}")
    set(drawing "${CMAKE_MATCH_2}")
    set(densities "")
    set(commands "")
    foreach(density IN LISTS OMBRIN_SKIN_DENSITIES)
      _ombrin_skin_density_name(alias "${name}" ${density})
      set(picture "${folder}/${alias}.png")
      list(APPEND densities "${picture}")
      list(APPEND commands COMMAND "${OMBRIN_RSVG_CONVERT}" --zoom=${density}
        --output "${picture}" "${drawing}")
      string(APPEND entries "    <file alias=\"${alias}\">${picture}</file>\n")
    endforeach()
    add_custom_command(OUTPUT ${densities} ${commands}
      DEPENDS "${drawing}"
      COMMENT "Drawing ${name}"
      VERBATIM)
    list(APPEND pictures ${densities})
  endforeach()

  set(listing "${folder}/images.qrc")
  file(GENERATE OUTPUT "${listing}" CONTENT
    "<!DOCTYPE RCC><RCC version=\"1.0\">\n  <qresource prefix=\"/\">\n${entries}  </qresource>\n</RCC>\n")

  # PNG is compressed already, and an uncompressed file is mapped, not unpacked. The first format
  # version holds no file dates, so that building twice gives the same bytes.
  get_filename_component(output_folder "${arg_OUTPUT}" DIRECTORY)
  add_custom_command(OUTPUT "${arg_OUTPUT}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${output_folder}"
    COMMAND ${rcc} --binary --no-compress --format-version 1
      --output "${arg_OUTPUT}" "${listing}"
    DEPENDS ${pictures} "${listing}"
    COMMENT "Packing ${arg_TARGET}"
    VERBATIM)
  add_custom_target(${arg_TARGET} ALL DEPENDS "${arg_OUTPUT}")
endfunction()

# Portraits of the example's contacts: SVG drawings in, square PNG pictures out.
#
#   messenger_portraits(<folder>)
#
# draws <folder>/portraits/<id>.png for every contact and puts the moving pictures beside them. A
# drawing <id>.svg.in is a template: @name@ stands for parts/name.svg.in, the faces, eyes and
# mouths that the contacts share, and the colours are classes that each drawing sets for itself.

include_guard(GLOBAL)

set(_messenger_portraits_folder "${CMAKE_CURRENT_LIST_DIR}")
set(_messenger_portrait_size 192)

function(messenger_portraits output)
  set(people anna bela chen dara emil fatima goran hana igor jun kofi lena marco nadia omar petra
    guide me)
  set(moving bela hana)
  set(parts ground body ears head_round head_long head_square eyes eyes_lashed eyes_happy nose blush
    smile laugh lips)

  foreach(part IN LISTS parts)
    set(file "${_messenger_portraits_folder}/parts/${part}.svg.in")
    file(READ "${file}" ${part})
    string(STRIP "${${part}}" ${part})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
  endforeach()

  set(folder "${output}/portraits")
  file(MAKE_DIRECTORY "${folder}")
  set(pictures "")
  foreach(person IN LISTS people)
    set(drawing "${CMAKE_CURRENT_BINARY_DIR}/portraits/${person}.svg")
    set(picture "${folder}/${person}.png")
    configure_file("${_messenger_portraits_folder}/${person}.svg.in" "${drawing}" @ONLY)
    add_custom_command(OUTPUT "${picture}"
      COMMAND "${OMBRIN_RSVG_CONVERT}" --width ${_messenger_portrait_size}
        --height ${_messenger_portrait_size} --output "${picture}" "${drawing}"
      DEPENDS "${drawing}"
      COMMENT "Drawing the portrait of ${person}"
      VERBATIM)
    list(APPEND pictures "${picture}")
  endforeach()
  foreach(person IN LISTS moving)
    set(source "${_messenger_portraits_folder}/${person}.gif")
    set(picture "${folder}/${person}.gif")
    add_custom_command(OUTPUT "${picture}"
      COMMAND "${CMAKE_COMMAND}" -E copy "${source}" "${picture}"
      DEPENDS "${source}"
      COMMENT "Copying the moving portrait of ${person}"
      VERBATIM)
    list(APPEND pictures "${picture}")
  endforeach()
  add_custom_target(messenger_portraits ALL DEPENDS ${pictures})
endfunction()

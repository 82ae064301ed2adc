# The layering, checked when the build is configured: a straight line with no way back.
#
#   velloro_check_layers(LAYER a b ... LAYER c ... FEATURES x y ... LAYER z ...)
#
# The groups are listed bottom up. A library may link the libraries of lower groups, and, within
# a LAYER group, those listed before it (so no two libraries of a group link each other). The
# libraries of a FEATURES group are siblings: none links another. Libraries of the project that
# are in no group, and the toolkit's, are not checked.
function(velloro_check_layers)
  set(group 0)
  set(kind "")
  set(order 0)
  set(all)
  foreach(word IN LISTS ARGN)
    if(word STREQUAL "LAYER" OR word STREQUAL "FEATURES")
      math(EXPR group "${group} + 1")
      set(kind ${word})
      continue()
    endif()
    if(NOT TARGET ${word})
      continue()  # not built in this configuration
    endif()
    math(EXPR order "${order} + 1")
    set(group_${word} ${group})
    set(kind_${word} ${kind})
    set(order_${word} ${order})
    list(APPEND all ${word})
  endforeach()

  foreach(lib IN LISTS all)
    get_target_property(links ${lib} LINK_LIBRARIES)
    if(NOT links)
      continue()
    endif()
    foreach(dep IN LISTS links)
      if(NOT DEFINED group_${dep} OR dep STREQUAL lib)
        continue()
      endif()
      set(bad FALSE)
      if(group_${dep} GREATER group_${lib})
        set(bad TRUE)
      elseif(group_${dep} EQUAL group_${lib})
        if(kind_${lib} STREQUAL "FEATURES" OR NOT order_${dep} LESS order_${lib})
          set(bad TRUE)
        endif()
      endif()
      if(bad)
        message(FATAL_ERROR "Layering: ${lib} must not link ${dep} (it sits in the same layer or above). "
                            "Move the code to the layer it belongs to instead.")
      endif()
    endforeach()
  endforeach()
endfunction()

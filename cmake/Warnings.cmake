# SPDX-License-Identifier: MIT
# The warnings that all of our own targets are compiled with.

function(velorexchange_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
    $<$<BOOL:${VELOREXCHANGE_WERROR}>:-Werror>)
endfunction()

# SPDX-License-Identifier: MIT
# VELOREXCHANGE_SANITIZE applies to everything that is built, so that no test mixes both worlds.

if(VELOREXCHANGE_SANITIZE)
  add_compile_options(-fsanitize=${VELOREXCHANGE_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -g)
  add_link_options(-fsanitize=${VELOREXCHANGE_SANITIZE})
endif()

# velorexchange_known_leaks(name): for programs that paint; what Qt leaks there is not held against them.
function(velorexchange_known_leaks name)
  if(VELOREXCHANGE_SANITIZE MATCHES "address|leak")
    target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tools/velorx/render/KnownLeaks.cpp)
  endif()
endfunction()

# SPDX-License-Identifier: MIT
# VELOREXCHANGE_SANITIZE applies to everything that is built, so that no test mixes both worlds.

if(VELOREXCHANGE_SANITIZE)
  add_compile_options(-fsanitize=${VELOREXCHANGE_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -g)
  add_link_options(-fsanitize=${VELOREXCHANGE_SANITIZE})
endif()

# Warnings are errors in our own code; platform headers come in as system headers.
add_compile_options(-Wall -Wextra -Werror -Wshadow -Wnon-virtual-dtor -Wcast-align -Wunused
                    -Wformat=2 -Wundef)

if(TARN_SANITIZE)
  # Reports name lines and nothing below them.
  add_compile_options(-fsanitize=${TARN_SANITIZE} -fno-omit-frame-pointer -O1 -g1)
  add_link_options(-fsanitize=${TARN_SANITIZE})
  if(TARN_SANITIZE MATCHES "undefined")
    add_compile_options(-fno-sanitize-recover=all)
    # The platform's libutils carries no run-time type information that the vptr check could use.
    add_compile_options(-fno-sanitize=vptr)
  endif()
endif()

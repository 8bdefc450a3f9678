# The build rules that all targets of this project share.

# mirovahr_defaults(<target>)
# Turns on the warnings, which are errors, and the sanitizers of MIROVAHR_SANITIZE.
function(mirovahr_defaults target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
    if(MIROVAHR_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${MIROVAHR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${MIROVAHR_SANITIZE})
    endif()
endfunction()

# mirovahr_product_defaults(<target>)
# As mirovahr_defaults, for what is delivered: text becomes a QString only where the code says so.
function(mirovahr_product_defaults target)
    mirovahr_defaults(${target})
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS)
endfunction()

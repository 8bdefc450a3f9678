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

# mirovahr_hardening(<target>)
# What makes a release build harder to take over: it stops when a stack or a buffer is overrun, and
# what the loader has resolved cannot be overwritten.
function(mirovahr_hardening target)
    if(MIROVAHR_SANITIZE)
        return()
    endif()
    set(hardening_compile_options
        -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -fstack-protector-strong -fstack-clash-protection)
    target_compile_options(${target} PRIVATE "$<$<CONFIG:Release>:${hardening_compile_options}>")
    target_link_options(${target} PRIVATE "$<$<CONFIG:Release>:LINKER:-z,relro;LINKER:-z,now>")
endfunction()

# mirovahr_product_defaults(<target>)
# As mirovahr_defaults, for what is delivered: hardened, and text becomes a QString only where the
# code says so.
function(mirovahr_product_defaults target)
    mirovahr_defaults(${target})
    mirovahr_hardening(${target})
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS)
endfunction()

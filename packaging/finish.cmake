# Run by CPack over the files of a package before it is put together: what Debian wants of them, and
# what makes two builds of the same sources the same to the byte.

set(root "${CPACK_TEMPORARY_DIRECTORY}")

# The documents speak of the sources and their paths. What concerns the sources only stands between
# two marks, and the files that are in the package are named where they are installed.
file(GLOB_RECURSE documents LIST_DIRECTORIES false "${root}/*/usr/share/doc/mirovahr-plugin/*.md")
if(documents)
    set(doc /usr/share/doc/mirovahr-plugin)
    execute_process(
        COMMAND sed -i -E
            -e "/^<!-- sources -->$/,/^<!-- .sources -->$/d"
            -e "s,([ (`])([.][.]/)?reference-db/,\\1${doc}/reference-db/,g"
            -e "s,([ (`])config/,\\1${doc}/examples/,g"
            ${documents}
        COMMAND_ERROR_IS_FATAL ANY)
endif()

file(GLOB_RECURSE texts LIST_DIRECTORIES false
    "${root}/*/usr/share/man/*.1" "${root}/*/usr/share/doc/*/changelog.Debian")
foreach(text IN LISTS texts)
    execute_process(COMMAND gzip -9n "${text}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()

file(GLOB_RECURSE binaries LIST_DIRECTORIES false
    "${root}/*/usr/bin/*" "${root}/*/usr/lib/*.so")
foreach(binary IN LISTS binaries)
    file(READ "${binary}" magic LIMIT 4 HEX)
    if(magic STREQUAL "7f454c46")
        execute_process(
            COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note "${binary}"
            COMMAND_ERROR_IS_FATAL ANY)
        if(binary MATCHES "\\.so$")
            file(CHMOD "${binary}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
        endif()
    endif()
endforeach()

if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(
        COMMAND find "${root}" -exec touch --no-dereference "--date=@$ENV{SOURCE_DATE_EPOCH}" {} +
        COMMAND_ERROR_IS_FATAL ANY)
endif()

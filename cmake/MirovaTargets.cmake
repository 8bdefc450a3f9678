# The build rules that all targets of this project share.

# What many files include and takes long to compile: precompiled, once for what is delivered and once
# for the tests. The preset "plain" does without, so that a missing #include is found.
set(mirovahr_frequent_headers
    <QByteArray> <QCoreApplication> <QDateTime> <QDebug> <QDir> <QFile> <QFileInfo> <QHash> <QMap>
    <QObject> <QRegularExpression> <QSet> <QSettings> <QSqlDatabase> <QSqlError> <QSqlQuery> <QString>
    <QStringList> <QVariant> <QVector>
    <algorithm> <functional> <memory> <optional>)

if(MIROVAHR_FAST_LINKER)
    find_program(LLD_PROGRAM ld.lld)
    if(LLD_PROGRAM)
        # Its optimisations and threads take half of the time that it needs for a program of the tests.
        add_link_options(-fuse-ld=lld LINKER:-O0 LINKER:--threads=1)
    endif()
endif()

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

# mirovahr_precompile(<target> <owner> <header>...)
# Lets the target use the precompiled headers of <owner>, which has the same flags.
function(mirovahr_precompile target owner)
    if(CMAKE_DISABLE_PRECOMPILE_HEADERS)
        return()
    endif()
    if(target STREQUAL owner)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    else()
        target_precompile_headers(${target} REUSE_FROM ${owner})
    endif()
    if(CCACHE_PROGRAM AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # ccache must see which headers were precompiled, and takes them only when it need not mind the
        # time of the compilation. plugin/buildstamp.cpp, which holds that time, does without them.
        target_compile_options(${target} PRIVATE -fpch-preprocess)
        set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER
            "env;CCACHE_SLOPPINESS=pch_defines,time_macros;${CCACHE_PROGRAM}")
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

# mirovahr_unite(<target>)
# With MIROVAHR_UNITY, compiles the sources of each folder as one: most of what a file costs is what
# it includes.
function(mirovahr_unite target)
    if(NOT MIROVAHR_UNITY)
        return()
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    foreach(source IN LISTS sources)
        cmake_path(ABSOLUTE_PATH source OUTPUT_VARIABLE folder)
        cmake_path(GET folder PARENT_PATH folder)
        cmake_path(GET folder FILENAME folder)
        set_source_files_properties("${source}" PROPERTIES UNITY_GROUP ${folder})
    endforeach()
endfunction()

# mirovahr_product_defaults(<target> [PLAIN])
# As mirovahr_defaults, for what is delivered: hardened, and text becomes a QString only where the
# code says so. PLAIN: without precompiled headers.
function(mirovahr_product_defaults target)
    mirovahr_defaults(${target})
    mirovahr_hardening(${target})
    mirovahr_unite(${target})
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS)
    if(NOT PLAIN IN_LIST ARGN)
        mirovahr_precompile(${target} mirovahr_db ${mirovahr_frequent_headers})
    endif()
endfunction()

# mirovahr_test_defaults(<target> [PLAIN])
# As mirovahr_defaults, for the tests and what they share. PLAIN: without precompiled headers, which
# do not fit a target that is compiled with Qt5::Gui or Qt5::Network.
function(mirovahr_test_defaults target)
    mirovahr_defaults(${target})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL EXECUTABLE)
        # A debugger finds the other types in the libraries, where they are described once.
        target_compile_options(${target} PRIVATE
            $<$<CXX_COMPILER_ID:GNU>:-femit-struct-debug-baseonly>)
    else()
        mirovahr_unite(${target})
    endif()
    # Without the flags of both, the precompiled headers are not those of this target.
    target_link_libraries(${target} PRIVATE Qt5::Sql Qt5::Test)
    if(NOT PLAIN IN_LIST ARGN)
        mirovahr_precompile(${target} mirovahr_test_programs ${mirovahr_frequent_headers}
            <QTemporaryDir> <QTest>)
    endif()
endfunction()

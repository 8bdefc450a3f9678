# What CPack has to know.

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME mirovahr)
set(CPACK_PACKAGE_CONTACT "${MIROVAHR_MAINTAINER}")
# Each package has its own: the first line of its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL plugin tools)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
# Whatever the umask of whoever builds them.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/finish.cmake")

set(CPACK_DEBIAN_PACKAGE_RELEASE "${MIROVAHR_PACKAGE_RELEASE}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_PLUGIN_PACKAGE_NAME mirovahr-plugin)
set(CPACK_DEBIAN_PLUGIN_DESCRIPTION
"attendance server plugin that follows the HR system's export
MirovaHR is a plugin of the YAV attendance server. It keeps the employees of
an attendance database in step with the text file that an HR or payroll
system exports: people, branches, calendar groups, vacation balances,
supervisors, the payroll export and the terminals.
.
Installing it configures nothing: see README.md and docs/operations.md in
the package's documentation.")
# The driver is loaded at run time, so that nothing in the library names its package.
set(CPACK_DEBIAN_PLUGIN_PACKAGE_DEPENDS libqt5sql5-mysql)
set(CPACK_DEBIAN_PLUGIN_PACKAGE_RECOMMENDS mirovahr-tools)

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME mirovahr-tools)
set(CPACK_DEBIAN_TOOLS_DESCRIPTION
"programs around the attendance server's MirovaHR plugin
mirovahrctl checks the plugin's configuration, HR's export and the
attendance database, stands between HR and the plugin as a gate, and tells
monitoring systems of the plugin's work.
.
yavhost runs the plugin without the attendance server, also as a service.
The service is neither enabled nor started when the package is installed.
.
mirovahr-demo shows the plugin at work beside a database server of its own.")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS
    "libqt5sql5-mysql, mount, systemd | systemd-standalone-sysusers | systemd-sysusers, systemd | systemd-standalone-tmpfiles | systemd-tmpfiles")
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS
    "mirovahr-plugin (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), mariadb-server-core, mariadb-client-core")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "bash-completion, xz-utils, zstd")
set(CPACK_DEBIAN_TOOLS_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_SOURCE_DIR}/tools/conffiles;${CMAKE_CURRENT_SOURCE_DIR}/tools/postinst;${CMAKE_CURRENT_SOURCE_DIR}/tools/prerm;${CMAKE_CURRENT_SOURCE_DIR}/tools/postrm")

include(CPack)

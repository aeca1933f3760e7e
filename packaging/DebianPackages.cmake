# The two Debian packages, made by `cpack` in a build tree of the release preset.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL brisel mount-tool)
set(CPACK_STRIP_FILES ON)
# Keeps the umask out of the modes of intermediate folders.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Brisel developers <developers@brisel.example>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://brisel.example/)
set(CPACK_DEBIAN_PACKAGE_SOURCE brisel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_COMPONENT_BRISEL_DESCRIPTION
"mount NTFS volumes read-write, from the tray
Brisel gives write access to NTFS disks. When one is plugged in, a
notification asks whether to remount it read-write. A tray icon shows the
state of the volume. Its menu opens, remounts and unmounts it, and can skip
the question next time.

It mounts through UDisks2, without root rights of its own. brisel-console
runs in a terminal. brisel-simulator runs the program on a simulated Mac.")
set(CPACK_DEBIAN_BRISEL_PACKAGE_NAME brisel)
set(CPACK_DEBIAN_BRISEL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_BRISEL_PACKAGE_DEPENDS "udisks2")
set(CPACK_DEBIAN_BRISEL_PACKAGE_RECOMMENDS "ntfs-3g, polkitd, xfce4-notifyd | notification-daemon")
# Suggested only: without it no code of Brisel runs as root.
set(CPACK_DEBIAN_BRISEL_PACKAGE_SUGGESTS "brisel-mount-tool")

set(CPACK_COMPONENT_MOUNT-TOOL_DESCRIPTION
"mount NTFS volumes read-write, for Brisel, as root
With this tool Brisel mounts NTFS volumes in the user's folder ~/.brisel
instead of through UDisks2.

The tool runs as root after polkit has asked for an administrator's password.
It accepts only an NTFS block device and an empty folder of the requesting
user, and never forces a mount.")
set(CPACK_DEBIAN_MOUNT-TOOL_PACKAGE_NAME brisel-mount-tool)
set(CPACK_DEBIAN_MOUNT-TOOL_PACKAGE_SECTION admin)
# The command line between them may change in any version.
set(CPACK_DEBIAN_MOUNT-TOOL_PACKAGE_DEPENDS
    "brisel (= ${PROJECT_VERSION}), ntfs-3g, pkexec, polkitd")
set(CPACK_DEBIAN_MOUNT-TOOL_PACKAGE_ENHANCES "brisel")

include(CPack)

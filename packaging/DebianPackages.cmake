# The two Debian packages, made by `cpack` in a build tree of the release preset.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL brisel mount-tool)
set(CPACK_STRIP_FILES ON)
# Folders that come about on the way; a umask must not show in a package.
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
Brisel notices every NTFS volume that is attached, offers to mount it
read-write, and does so when you say yes, or by itself for volumes that you
chose. It is an icon in the tray that tells by shape and colour what goes on,
and a menu.

It mounts through UDisks2, and nothing of it runs as root. For machines
without a desktop there is brisel-console, for trying things out
brisel-simulator, the whole program on a simulated machine.")
set(CPACK_DEBIAN_BRISEL_PACKAGE_NAME brisel)
set(CPACK_DEBIAN_BRISEL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_BRISEL_PACKAGE_DEPENDS "udisks2")
set(CPACK_DEBIAN_BRISEL_PACKAGE_RECOMMENDS "ntfs-3g, polkitd, xfce4-notifyd | notification-daemon")
# Not more than suggested: without it no code of Brisel runs as root.
set(CPACK_DEBIAN_BRISEL_PACKAGE_SUGGESTS "brisel-mount-tool")

set(CPACK_COMPONENT_MOUNT-TOOL_DESCRIPTION
"mount NTFS volumes read-write, for Brisel, as root
With this tool Brisel mounts NTFS volumes in a folder of the user's own,
~/.brisel, instead of through UDisks2.

Polkit asks for an administrator's password first. The tool then runs as
root: it takes an NTFS block device and an empty folder of the user who asks,
and nothing else, and never forces a mount.")
set(CPACK_DEBIAN_MOUNT-TOOL_PACKAGE_NAME brisel-mount-tool)
set(CPACK_DEBIAN_MOUNT-TOOL_PACKAGE_SECTION admin)
# The program and its tool agree on a command line.
set(CPACK_DEBIAN_MOUNT-TOOL_PACKAGE_DEPENDS
    "brisel (= ${PROJECT_VERSION}), ntfs-3g, pkexec, polkitd")
set(CPACK_DEBIAN_MOUNT-TOOL_PACKAGE_ENHANCES "brisel")

include(CPack)

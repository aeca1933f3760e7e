# The rules of mounting and unmounting: the operations that the menu and the prompts offer.
# SPDX-License-Identifier: MIT
from volume import Volume
from world import shown, url

CANCELLED, FUNCTION_MISSING = -60006, -70001
STATUS_NAMES = ["Error", "Busy", "BadArgument", "ExclusiveAccess", "NoResources", "NotFound",
                "NotMounted", "NotPermitted", "NotPrivileged", "NotReady", "NotWritable",
                "Unsupported"]


def status_message(status, device):
    if 0xF8DA0001 <= status <= 0xF8DA000C:
        return f"kDAReturn{STATUS_NAMES[status - 0xF8DA0001]} for volume {device}"
    if status == 0:
        return f"kDAReturnSuccess for volume {device}"
    return f"no error specified by DADissenter for volume {device}"


class Mounting:
    """The part of the program that mounts and unmounts."""

    # Mounting read-write.

    def remount(self, volume):
        self.in_progress = True
        yield from self.go_ahead(volume)

    def go_ahead(self, volume):
        if volume:
            self.in_progress = True
            self.menu.refresh()
            self.world.unmount(volume.device, self.unmounted_to_mount_again)
            return
        self.menu.show_error()
        yield from self.alert(
            self.world.text("Volume not mounted"),
            self.world.text("The volume %@ is not mounted currently at the specified path. Please "
                            "remove and re-attach the device.", shown(None)))
        self.in_progress = False

    def unmounted_to_mount_again(self, device, refusal):
        self.log("disk unmounted...")
        description = self.world.description(device)
        if refusal is not None:
            yield from self.report_unmount_failure(description, refusal)
        elif description.get("mountable") != "yes":
            self.log("Disk not mountable!")
        elif self.world.system < 12:
            self.world.mount_with_arguments(device, "rw auto nobrowse noowners noatime",
                                            self.mounted_again)
        else:
            yield from self.mount_with_tool(description)

    def mount_with_tool(self, description):
        device = description["device"]
        volume = self.volume_on(device)
        label = volume.label if volume else shown(description.get("name"))
        mount_point = f"{self.world.home}/.brisel/{label}"
        failure = self.world.create_folder(mount_point)
        if failure:
            self.log_folder("create", failure)
            return
        status = yield from self.launch(
            ["-o", "rw,auto,nobrowse,noowners,noatime", f"/dev/{device}", mount_point])
        if status != 0:
            self.not_launched(status, device, mount_point)
            return
        self.log(f"mount command successfully launched for /dev/{device}")
        if self.world.tool_output:
            self.log(f"mount command output: {self.world.tool_output}")
        self.forget(device)
        if self.world.tool_status != 0:
            self.log("mount will fail, there is a termination status report: "
                     f"{self.world.tool_status}")
            yield from self.report_remount_failure(description, None)
            return
        self.volumes.append(Volume(description, label, True, mount_point))
        self.menu.refresh()
        self.open_in_finder(mount_point)

    def launch(self, arguments):
        """Starts the mount tool as administrator; the status of that."""
        if self.world.launch_missing:
            self.log("AuthorizationExecuteWithPrivileges() function not available on this system")
            return FUNCTION_MISSING
        self.world.say("authorize: system.privilege.admin")
        status = yield "password"
        return status or self.world.start_mount_tool(arguments)

    def not_launched(self, status, device, mount_point):
        self.log("mount command cancelled by user" if status == CANCELLED
                 else "something went wrong with mount command launch")
        failure = self.world.delete_folder(mount_point)
        if failure:
            self.log_folder("delete", failure)
        self.forget(device)
        self.in_progress = False
        self.menu.refresh()

    def mounted_again(self, device, refusal):
        description = self.world.description(device)
        if refusal is not None:
            yield from self.report_remount_failure(description, refusal)
        else:
            yield from self.appeared(description)
            self.open_in_finder(description.get("path"))

    # Unmounting.

    def unmount(self, volume):
        disk = self.world.disk_at(volume.location())
        if disk:
            self.world.unmount(disk.device, self.unmounted)
        else:
            self.log(f"Unmount failed for volume at URL {shown(url(volume.location()))}")
        yield from ()

    def unmounted(self, device, refusal):
        if refusal is not None:
            yield from self.report_unmount_failure(self.world.description(device), refusal)
            return
        for volume in [volume for volume in self.volumes if volume.device == device]:
            self.volumes.remove(volume)
            self.menu.refresh()
            if volume.path:
                self.remove_empty_folder(volume.path)
            self.in_progress = False

    # What was refused.

    def report_unmount_failure(self, description, refusal):
        self.menu.show_error()
        yield from self.report_failure(
            description, refusal, 'Volume "%@" not unmountable',
            "The volume is not unmountable. Probably it is still used by another application.")

    def report_remount_failure(self, description, refusal):
        self.menu.show_error()
        self.forget(description["device"])
        yield from self.report_failure(
            description, refusal, 'Volume "%@" not re-mountable',
            "The volume is not re-mountable in read/write mode. Probably it was not clean "
            "unmounted before.")

    def report_failure(self, description, refusal, message, text):
        if refusal is not None:
            self.log(status_message(refusal, description["device"]))
        name = shown(description.get("name"))
        yield from self.alert(self.world.text(message, name), self.world.text(text))
        self.in_progress = False
        self.menu.refresh()

    # The Finder.

    def show_in_finder(self, volume):
        self.open_in_finder(volume.location())
        yield from ()

    def open_in_finder(self, path):
        self.world.say(f"open: {shown(url(path))}")
        self.in_progress = False
        self.menu.refresh()

    def clean_up(self, volume):
        self.in_progress = True
        self.menu.refresh()
        folder = f"{self.world.home}/.brisel" if self.world.system >= 12 else "/Volumes"
        error = self.world.run_script(f'do shell script "xattr -cr {folder}/{volume.label}"')
        if error is not None:
            self.log("Error executing Apple Script: (null)")
            for key, value in error.items():
                self.log(f"key: {key}, value: {value}")
        self.in_progress = False
        self.menu.refresh()
        yield from ()

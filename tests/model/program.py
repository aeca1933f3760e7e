# The rules of the program: what it does when something happens, stated once more and plainly.
# SPDX-License-Identifier: MIT
#
# Whatever may wait for the user is a generator; it yields what it waits for and is sent the answer.
from menu import Menu
from mounting import Mounting
from volume import Volume
from world import Ended, shown

HELPER = "org.brisel.BriselHelper"


class Program(Mounting):
    def __init__(self, world):
        self.world = world
        self.volumes = []
        self.in_progress = False
        self.start_at_login = False
        self.menu = Menu(self)

    def log(self, text):
        self.world.say(f"log: {text}")

    def log_folder(self, operation, failure):
        description, reason = failure
        self.log(f"Unable to {operation} folder: {description}, reason: {shown(reason)}")

    def alert(self, message, text, *buttons):
        """Shows an alert; the answer is the number of the button."""
        buttons = buttons or ("OK",)
        self.world.say(f"alert: {message}")
        self.world.say(f"text: {text}")
        self.world.say("buttons: " + " | ".join(buttons))
        return (yield buttons)

    # The application.

    def start(self):
        self.world.listen(self)
        self.start_at_login = self.world.defaults.get("shouldStartAtLogin", False)
        if self.world.defaults.get("showDisclaimer", True):
            yield from self.warn()
        self.menu.refresh()
        self.menu.follows_appearance = True

    def warn(self):
        text = self.world.text
        sentences = [text(sentence) for sentence in (
            "Brisel reveals the already exsisting write function of the macOS NTFS kernel driver. "
            "The function is hidden by default for a good reason: Because it is experimental. You "
            "may encounter problems when the device is removed unexpectly, without proper unmount "
            "action.",
            "Please make sure to always have a good backup in place.",
            "The usage of Brisel is at your own risk.",
            "You will find further information on Brisel website.")]
        button = yield from self.alert(
            text("A Warning Notice - Please Read Carefully"),
            "\n\n".join(sentences[:3]) + "\n" + sentences[3],
            text("OK, I understand."), text("I am worried, please take me out."))
        if button == 0:
            self.log("User accepted the potential risk.")
            self.world.store("showDisclaimer", False)
        else:
            self.log("User did not accept risk, app will terminate.")
            self.world.store("showDisclaimer", True)
            yield from self.terminate()

    def terminate(self, _=None):
        self.world.say("terminate")
        self.world.say("synchronize")
        raise Ended
        yield

    def bring_to_front(self, _):
        self.world.say("activate")
        self.world.say("about")
        yield from ()

    def toggle_start_at_login(self, _):
        wanted = not self.start_at_login
        self.world.say(f"login-item: {HELPER} {'on' if wanted else 'off'}")
        if self.world.login_items_accept:
            self.start_at_login = wanted
            self.world.store("shouldStartAtLogin", wanted)
        else:
            text = self.world.text
            yield from self.alert(
                text("An error ocurred"),
                text("Couldn't %@ Helper App to launch at login item list."), text("OK"))

    def respond(self, action, identifier, device):
        """The user's response to a prompt."""
        if identifier == "mount" and action == "DO_MOUNT":
            self.in_progress = True
            yield from self.go_ahead(self.volume_on(device))

    # Disks come and go.

    def volume_on(self, device):
        return next((volume for volume in self.volumes if volume.device == device), None)

    def forget(self, device):
        volume = self.volume_on(device)
        if volume:
            self.volumes.remove(volume)

    def is_on_list(self, volume):
        return volume.uuid in self.world.defaults.get("volumeList", [])

    def appeared(self, description):
        device, name = description["device"], shown(description.get("name"))
        self.log(f"disk {device} appeared")
        kind = shown(description.get("kind"))
        writable = self.world.is_writable(description.get("path"))
        if description.get("mountable") != "yes" or "ntfs" not in kind.lower():
            return
        if kind != "ntfs":
            self.log(f'Warning: The Volume Kind of "{name}" is not "ntfs" but "{kind}"')
            self.log(" -> Brisel will try its best to remount r/w but might fail because of "
                     "incompatibility. Please make sure to remove any third-party extension.")
        label = name
        for volume in list(self.volumes):
            if volume.device == device:
                was_last = volume is self.volumes[-1]
                self.volumes.remove(volume)
                if not was_last:
                    return
            elif volume.label == label:
                label = f"{label}-{device}"
        volume = Volume(description, label, writable)
        self.volumes.append(volume)
        if self.is_on_list(volume) and not writable:
            yield from self.go_ahead(volume)
        else:
            self.menu.refresh()

    def disappeared(self, description):
        self.log(f"disk {description['device']} disappeared")
        volume = self.volume_on(description["device"])
        if description.get("kind") != "ntfs" or not volume:
            return
        if volume.path and not self.remove_empty_folder(volume.path):
            return
        self.volumes.remove(volume)
        self.in_progress = False
        self.menu.refresh()
        yield from ()

    def remove_empty_folder(self, path):
        """Removes a mount point with nothing in it; whether nothing went wrong."""
        failure = self.world.missing_folder("list", path)
        if failure:
            self.log_folder("list", failure)
            return False
        if not self.world.folders.within(path):
            failure = self.world.delete_folder(path)
            if failure:
                self.log_folder("delete", failure)
                return False
        return True

    # The list of volumes to mount automatically.

    def save_for_automount(self, volume):
        listed = list(self.world.defaults.get("volumeList", []))
        if len(listed) >= 128:
            listed.pop(0)
        listed.append(volume.uuid)
        self.log(f"List count: {len(listed)}")
        self.store_list(listed)
        yield from ()

    def unsave_for_automount(self, volume):
        listed = self.world.defaults.get("volumeList", [])
        self.store_list([uuid for uuid in listed if uuid != volume.uuid])
        yield from ()

    def store_list(self, listed):
        self.world.store("volumeList", listed)
        self.world.say("synchronize")
        self.menu.refresh()

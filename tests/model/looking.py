# What `show` tells of the program and of its surroundings, a line a thing.
# SPDX-License-Identifier: MIT
from folders import plain
from world import shown, url


def menu(model):
    for item in model.program.menu.items if model.started else []:
        if item.is_separator():
            model.world.say(f"item: tag={item.tag} ---")
            continue
        parts = [f'item: tag={item.tag} title="{item.title}"']
        parts += [f"action={item.action}"] if item.action else []
        parts += [f"volume={item.volume.device}"] if item.volume else []
        parts += ["align=1"] if item.tag == 102 else []
        parts += ["checked"] if model.program.menu.is_checked(item) else []
        model.world.say(" ".join(parts))


def volumes(model):
    for volume in model.program.volumes:
        model.world.say(
            f'volume: {volume.device} label="{volume.label}" uuid={shown(volume.uuid)} '
            f"writable={'yes' if volume.writable else 'no'} "
            f"sent={'yes' if volume.prompted else 'no'} path={shown(url(volume.path))}")


def progress(model):
    model.world.say(f"progress: {'yes' if model.program.in_progress else 'no'}")


def defaults(model):
    for key in sorted(model.world.defaults):
        model.world.say(f"default: {key} = {model.world.preference(key)}")


def folders(model):
    root = plain(model.world.home + "/.brisel")
    for folder in sorted(model.world.folders.folders):
        if folder == root or folder.startswith(root + "/"):
            model.world.say(f"folder: {folder}")

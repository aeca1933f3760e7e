# A private message bus, D-Bus calls, and D-Bus objects.
# SPDX-License-Identifier: MIT
import os
import threading

from gi.repository import Gio, GLib

from .programs import Program
from .waiting import wait_for

CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <keep_umask/>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{services}</servicedir>
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""
CALL_TIMEOUT_MS = 20000


class PrivateBus:
    """A dbus-daemon in `folder`, open to the user and to the stage."""

    def __init__(self, name, folder, account, environment):
        socket = os.path.join(folder, f"{name}.socket")
        self.services = os.path.join(folder, f"{name}-services")
        os.mkdir(self.services)
        configuration = os.path.join(folder, f"{name}.conf")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(CONFIGURATION.format(socket=socket, services=self.services))
        self.address = f"unix:path={socket}"
        self.program = Program(
            ["dbus-daemon", "--nofork", f"--config-file={configuration}"], account,
            {**environment, "DBUS_SESSION_BUS_ADDRESS": self.address},
            os.path.join(folder, f"{name}.log"))
        wait_for(self._listens, f"the bus {name} listens")

    def _listens(self):
        try:
            connect(self.address).close_sync()
            return True
        except GLib.Error:
            return False

    def offer(self, service_file):
        """Makes a service of this machine activatable."""
        os.symlink(service_file, os.path.join(self.services, os.path.basename(service_file)))


def connect(address):
    """A new connection to the bus at `address`."""
    return Gio.DBusConnection.new_for_address_sync(
        address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT |
        Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)


def system_bus():
    """A new connection to the system bus."""
    return connect(Gio.dbus_address_get_for_bus_sync(Gio.BusType.SYSTEM, None))


def call(connection, name, path, method, signature="()", *arguments):
    """Calls INTERFACE.MEMBER; returns the answer as Python values."""
    interface, member = method.rsplit(".", 1)
    answer = connection.call_sync(name, path, interface, member,
                                  GLib.Variant(signature, arguments), None,
                                  Gio.DBusCallFlags.NONE, CALL_TIMEOUT_MS, None)
    return answer.unpack()


def driver(connection, member, signature="()", *arguments):
    """Calls the bus driver; returns the first value of its answer."""
    answer = call(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                  f"org.freedesktop.DBus.{member}", signature, *arguments)
    return answer[0] if answer else None


def has_owner(connection, name):
    return driver(connection, "NameHasOwner", "(s)", name)


def owner_pid(connection, name):
    return driver(connection, "GetConnectionUnixProcessID", "(s)", name)


def own_name(connection, name):
    """Takes a bus name, replacing an owner that allows it."""
    replace_existing = 2
    answer = driver(connection, "RequestName", "(su)", name, replace_existing)
    if answer not in (1, 4):
        raise RuntimeError(f"{name} belongs to another program")


def properties(connection, name, path, interface):
    return call(connection, name, path, "org.freedesktop.DBus.Properties.GetAll", "(s)",
                interface)[0]


class Answers:
    """The thread whose main loop serves the fake services."""

    def __init__(self):
        self._loop = GLib.MainLoop()
        self._thread = threading.Thread(target=self._loop.run, daemon=True)
        self._thread.start()

    def close(self):
        self._loop.quit()
        self._thread.join()


class Service:
    """A D-Bus object whose Python methods have the names of its D-Bus methods.

    A method gets the call's arguments and returns a tuple, or PENDING to answer later through
    `self.invocation`.
    """

    XML = ""
    PENDING = object()

    def __init__(self, connection, path):
        self.connection = connection
        self.path = path
        self.invocation = None
        self._registrations = [
            connection.register_object(path, interface, self._on_call, self._on_get, None)
            for interface in Gio.DBusNodeInfo.new_for_xml(self.XML).interfaces]

    def withdraw(self):
        """Unregisters the object."""
        for registration in self._registrations:
            self.connection.unregister_object(registration)
        self._registrations = []

    def emit(self, interface, signal, signature, *arguments):
        self.connection.emit_signal(None, self.path, interface, signal,
                                    GLib.Variant(signature, arguments))

    def read_property(self, interface, name):
        """The value of a property as a GLib.Variant."""
        raise NotImplementedError

    def _on_get(self, _connection, _sender, _path, interface, name):
        return self.read_property(interface, name)

    def _on_call(self, _connection, _sender, _path, interface, member, arguments, invocation):
        self.invocation = invocation
        try:
            result = getattr(self, member)(*arguments.unpack())
        except BusError as problem:
            invocation.return_dbus_error(problem.name, str(problem))
            return
        if result is not self.PENDING:
            method = invocation.get_method_info()
            signature = "(" + "".join(argument.signature for argument in method.out_args) + ")"
            invocation.return_value(GLib.Variant(signature, result))


class BusError(Exception):
    """A D-Bus error for the caller."""

    def __init__(self, name, message):
        super().__init__(message)
        self.name = name

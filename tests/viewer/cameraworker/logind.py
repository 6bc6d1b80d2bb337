"""A logind for dbusmock that hands out inhibitor locks and tells in its log when one is dropped.

The template that comes with dbusmock does not tell the latter.
"""

import os

import dbus
from gi.repository import GLib

BUS_NAME = 'org.freedesktop.login1'
MAIN_OBJ = '/org/freedesktop/login1'
MAIN_IFACE = 'org.freedesktop.login1.Manager'
SYSTEM_BUS = True


def load(mock, parameters):
    mock.refuses = parameters.get('refuses', False)


@dbus.service.method(MAIN_IFACE, in_signature='ssss', out_signature='h')
def Inhibit(self, what, who, why, mode):
    if self.refuses:
        raise dbus.exceptions.DBusException('No.', name='org.freedesktop.DBus.Error.AccessDenied')
    ours, lock = os.pipe()

    def on_dropped(*_):
        self.log('dropped')
        os.close(ours)
        return False

    GLib.unix_fd_add_full(GLib.PRIORITY_HIGH, ours, GLib.IO_HUP, on_dropped)
    # Whoever asks has a descriptor of its own as soon as the answer is sent.
    GLib.idle_add(os.close, lock)
    return lock

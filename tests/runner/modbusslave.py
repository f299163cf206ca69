"""A MODBUS RTU slave of Debian's pymodbus: station 1, whose 100 holding registers hold 17 at first.

Prints the port that it answers behind, and answers until it is ended.
"""

import os
import select
import threading
import tty

from pymodbus.datastore import ModbusSequentialDataBlock, ModbusServerContext, ModbusSlaveContext
from pymodbus.server import StartSerialServer
from pymodbus.transaction import ModbusRtuFramer


def open_terminal():
    """The near end, and the path of the far one, which stays open here, too."""
    near, far = os.openpty()
    tty.setraw(far)
    return near, os.ttyname(far)


def join(one, other):
    while True:
        for end in select.select([one, other], [], [])[0]:
            os.write(other if end == one else one, os.read(end, 4096))


master, port = open_terminal()
slave, own_port = open_terminal()
threading.Thread(target=join, args=(master, slave), daemon=True).start()
print(port, flush=True)
registers = ModbusSequentialDataBlock(1, [17] * 100)
StartSerialServer(context=ModbusServerContext(ModbusSlaveContext(hr=registers)),
                  framer=ModbusRtuFramer, port=own_port, baudrate=115200)

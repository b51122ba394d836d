# SPDX-License-Identifier: MIT
"""What a process and its descendants are, and hold, by the kernel's own account."""
import ipaddress
import os
import re
import socket
import struct

LISTENING = {"tcp": "0A", "unix": "01"}


def read(path):
    try:
        with open(path, "rb") as file:
            return file.read().decode(errors="replace")
    except OSError:  # it has ended
        return ""


def is_running(process):
    status = read(f"/proc/{process}/stat")
    return bool(status) and status.rpartition(")")[2].split()[0] not in "ZX"


def command(process):
    return read(f"/proc/{process}/cmdline").split("\0")[:-1]


def environment(process):
    return dict(entry.split("=", 1) for entry in read(f"/proc/{process}/environ").split("\0") if "=" in entry)


def descendants(ancestor):
    parents = {}
    for name in filter(str.isdigit, os.listdir("/proc")):
        status = read(f"/proc/{name}/stat").rpartition(")")[2].split()
        if status:
            parents[int(name)] = int(status[1])
    found = [ancestor]
    for process in found:
        found += [child for child, parent in parents.items() if parent == process]
    return found[1:]


def socket_inodes(processes):
    inodes = set()
    for process in processes:
        folder = f"/proc/{process}/fd"
        try:
            for name in os.listdir(folder):
                match = re.fullmatch(r"socket:\[(\d+)\]", os.readlink(f"{folder}/{name}"))
                if match:
                    inodes.add(match.group(1))
        except OSError:
            pass
    return inodes


def decode_address(text):
    words = [struct.pack("=I", int(text[i:i + 8], 16)) for i in range(0, len(text), 8)]
    return ipaddress.ip_address(b"".join(words))


def tcp_listeners():
    """Inode, address and port of every one of the machine."""
    for table in ("tcp", "tcp6"):
        for line in read(f"/proc/net/{table}").splitlines()[1:]:
            columns = line.split()
            address, port = columns[1].split(":")
            if columns[3] == LISTENING["tcp"]:
                yield columns[9], decode_address(address), int(port, 16)


def unix_listeners():
    """Inode and name of every one of the machine; what has no file begins with "@"."""
    for line in read("/proc/net/unix").splitlines()[1:]:
        columns = line.split()
        if columns[5] == LISTENING["unix"] and len(columns) == 8:
            yield columns[6], columns[7]


def other_addresses():
    """The machine's own ones that are not loopback, link-local ones left out."""
    found = set()
    for line in read("/proc/net/fib_trie").split("|--")[1:]:
        if "/32 host LOCAL" in line:
            found.add(ipaddress.ip_address(line.split()[0]))
    for line in read("/proc/net/if_inet6").splitlines():
        found.add(ipaddress.ip_address(bytes.fromhex(line.split()[0])))
    return sorted(str(address) for address in found if not address.is_loopback and not address.is_link_local)


def answers(address, port):
    try:
        socket.create_connection((address, port), 10).close()
    except OSError:
        return False
    return True

"""As much of a VNC viewer as it takes to knock at a server's door: the handshake with a password, and what is offered."""
import ctypes
import socket
import struct

VNC_AUTHENTICATION = 2
DES, ECB = 302, 1  # libgcrypt's numbers


def encrypted(password, challenge):
    """The challenge under the password: DES, every byte of the key with its bits the other way round."""
    key = bytes(int(f"{byte:08b}"[::-1], 2) for byte in password.encode()[:8].ljust(8, b"\0"))
    crypt = ctypes.CDLL("libgcrypt.so.20")  # the server's own library
    crypt.gcry_check_version(None)
    cipher = ctypes.c_void_p()
    if crypt.gcry_cipher_open(ctypes.byref(cipher), DES, ECB, 0):
        raise OSError("there is no DES here")
    crypt.gcry_cipher_setkey(cipher, key, len(key))
    answer = ctypes.create_string_buffer(len(challenge))
    crypt.gcry_cipher_encrypt(cipher, answer, len(challenge), challenge, len(challenge))
    crypt.gcry_cipher_close(cipher)
    return answer.raw


class Viewer:
    def __init__(self, port, address="127.0.0.1"):
        self.socket = socket.create_connection((address, port), timeout=20)
        self.greeting = self.read(12)
        self.socket.sendall(b"RFB 003.008\n")
        self.ways_in = list(self.read(self.read(1)[0]))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.socket.close()

    def read(self, count):
        data = b""
        while len(data) < count:
            more = self.socket.recv(count - len(data))
            if not more:
                raise ConnectionError("the server has hung up")
            data += more
        return data

    def enters(self, password):
        """Does the server accept the password?"""
        self.socket.sendall(bytes([VNC_AUTHENTICATION]))
        self.socket.sendall(encrypted(password, self.read(16)))
        return struct.unpack(">I", self.read(4))[0] == 0

    def screen(self):
        """Width, height and name of what is shown; after the password."""
        self.socket.sendall(b"\x01")
        width, height, _, length = struct.unpack(">HH16sI", self.read(24))
        return width, height, self.read(length).decode()

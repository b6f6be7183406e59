/* Loaded before the program where it serves its window to a viewer: a server that would listen on every address of the
 * machine listens on 127.0.0.1 alone. The toolkit's server has no setting for it. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <netinet/in.h>
#include <string.h>
#include <sys/socket.h>

typedef int (*bind_function)(int, const struct sockaddr *, socklen_t);

static const unsigned char mapped_loopback[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 127, 0, 0, 1};

int bind(int socket, const struct sockaddr *address, socklen_t length) {
    const bind_function system_bind = (bind_function)dlsym(RTLD_NEXT, "bind");
    if (address->sa_family == AF_INET && length >= sizeof(struct sockaddr_in)) {
        struct sockaddr_in local;
        memcpy(&local, address, sizeof local);
        local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return system_bind(socket, (const struct sockaddr *)&local, sizeof local);
    }
    if (address->sa_family == AF_INET6 && length >= sizeof(struct sockaddr_in6)) {
        struct sockaddr_in6 local;
        memcpy(&local, address, sizeof local);
        memcpy(&local.sin6_addr, mapped_loopback, sizeof mapped_loopback);
        return system_bind(socket, (const struct sockaddr *)&local, sizeof local);
    }
    return system_bind(socket, address, length);
}

// A USB device that blocks: it is opened, and the first write to it never returns, as with a driver that
// hangs. Linked into the program in the place of the HID library.
#include <hidapi.h>

#include <cstdio>
#include <unistd.h>

namespace {
int device = 0;
} // namespace

extern "C" {

int hid_init() { return 0; }
int hid_exit() { return 0; }
hid_device_info* hid_enumerate(unsigned short, unsigned short) { return nullptr; }
void hid_free_enumeration(hid_device_info*) {}
hid_device* hid_open(unsigned short, unsigned short, const wchar_t*) {
    return reinterpret_cast<hid_device*>(&device); // NOLINT: only its address matters
}
void hid_close(hid_device*) {}
int hid_set_nonblocking(hid_device*, int) { return 0; }
int hid_read(hid_device*, unsigned char*, size_t) { return 0; }

int hid_write(hid_device*, const unsigned char*, size_t) {
    std::fputs("blocked\n", stderr);
    for (;;)
        pause();
}
}

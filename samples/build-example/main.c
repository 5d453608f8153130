/* Shows two textures that were compiled in, on a terminal of 24-bit colours. */

#include "Critter.h"
#include "Ice.h"

#include <stdio.h>

/* Two texels to a byte, the first in the high half. */
static unsigned texel(const uint8_t* row, int x) {
    return x % 2 == 0 ? row[x / 2] >> 4 : row[x / 2] & 15u;
}

/* Red, green and blue of 5 bits each stand above the bit of alpha. */
static unsigned channel(uint16_t entry, int shift) {
    return (unsigned)(entry >> shift & 31) * 255 / 31;
}

static void show(const uint8_t* texels, int width, int height, int rowBytes, const uint16_t* palette) {
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const uint16_t entry = palette[texel(texels + y * rowBytes, x)];
            if ((entry & 1) == 0)
                printf("\x1b[0m  ");
            else
                printf("\x1b[48;2;%u;%u;%um  ", channel(entry, 11), channel(entry, 6), channel(entry, 1));
        }
        puts("\x1b[0m");
    }
}

int main(void) {
    show(Critter_texels, CRITTER_WIDTH, CRITTER_HEIGHT, CRITTER_ROW_BYTES, Critter_palette);
    show(Ice_texels, ICE_WIDTH, ICE_HEIGHT, ICE_ROW_BYTES, Ice_palette);
    return 0;
}

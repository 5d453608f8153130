#include "cli/thumbnailer/RunThumbnailer.h"

int main(int argc, char** argv) {
    return dyeworks::runThumbnailer({argv + (argc > 0 ? 1 : 0), argv + argc});
}

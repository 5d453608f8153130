#include "cli/RunCommandLine.h"

int main(int argc, char** argv) {
    return dyeworks::runCommandLine({argv + (argc > 0 ? 1 : 0), argv + argc});
}

#include "ui/RunDyeworks.h"

int main(int argc, char** argv) {
    return dyeworks::runDyeworks(argc, argv);
}

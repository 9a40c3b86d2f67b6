// korvet-batch: the program without a screen.
#include "batch/batch.h"

int main(int argc, char** argv) {
    return korvet::batch::RunCommandLine(argc, argv);
}

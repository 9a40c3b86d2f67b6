// korvet-batch: the program without a screen.
#include "batch/batch.h"
#include "platform/standard_streams.h"

int main(int argc, char** argv) {
    korvet::HoldStandardStreams();
    return korvet::batch::RunCommandLine(argc, argv);
}

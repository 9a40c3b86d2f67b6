// korvet-batch: the program without a screen.
#include <exception>
#include <iostream>

#include "batch/batch.h"

int main(int argc, char** argv) {
    using namespace korvet::batch;
    try {
        const auto arguments = ParseArguments(argc, argv);
        return arguments ? Run(*arguments) : Done;
    } catch (const UsageError& error) {
        std::cerr << "korvet-batch: " << error.what() << "\nkorvet-batch --help tells the options.\n";
        return WrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "korvet-batch: " << error.what() << '\n';
        return Refused;
    }
}

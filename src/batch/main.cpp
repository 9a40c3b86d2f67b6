// korvet-batch: the program without a screen.
#include <exception>
#include <iostream>
#include <stdexcept>

#include "batch/batch.h"

int main(int argc, char** argv) {
    using namespace korvet::batch;
    try {
        const auto arguments = ParseArguments(argc, argv);
        const int status = arguments ? Run(*arguments) : Done;
        std::cout.flush();
        if (!std::cout && status == Done) {
            throw std::runtime_error("the standard output cannot be written");
        }
        return status;
    } catch (const UsageError& error) {
        std::cerr << "korvet-batch: " << error.what() << "\nkorvet-batch --help tells the options.\n";
        return WrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "korvet-batch: " << error.what() << '\n';
        return Failed;
    }
}

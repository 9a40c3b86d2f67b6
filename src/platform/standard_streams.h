// What a program of ours settles before it opens its first file.
#pragma once

namespace korvet {

/// Sees to it that the numbers of the three standard streams are taken: where one is closed, the first file
/// that is opened would have its number, and messages would go into that file. What is written to a stream
/// that was closed fails as before. A file that grows beyond what the system allows is an error of its write
/// and not the end of the program.
void HoldStandardStreams();

}  // namespace korvet

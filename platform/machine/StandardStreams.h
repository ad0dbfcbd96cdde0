#pragma once

namespace velmora {

/// Makes sure that writing can neither end the program nor go astray: standard streams that are closed
/// are opened on nothing, so that no file or connection takes their numbers, and a reader that has gone or
/// a file that may not grow is an error of the write, not a signal. To be called before anything is opened.
void secureStandardStreams();

} // namespace velmora

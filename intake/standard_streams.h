#pragma once

namespace intake {

/// Opens what stands for a closed standard stream, so that no file of the job comes to stand for
/// one. Reading from a closed input and writing to a closed output go on failing.
void occupyStandardStreams();

}  // namespace intake

#pragma once

namespace intake::picture {

/// Prepares the library that decodes pictures, once per process and before anything else of it, and
/// bounds what it may take, as SECURITY.md says.
void startDecoder();

}  // namespace intake::picture

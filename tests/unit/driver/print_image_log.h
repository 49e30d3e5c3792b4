// Logs of printed pages, for comparison.
#pragma once

#include <regex>
#include <string>

/// A log without what no test can foresee: addresses, and times in the names of dumps.
inline std::string withoutAddresses(const std::string& log) {
    const std::string plain =
        std::regex_replace(log, std::regex("address: (0x[0-9a-f]+|[0-9]+)"), "address: <address>");
    return std::regex_replace(plain, std::regex("[0-9]+-[0-9]+-[0-9]+_[0-9]+_[0-9]+_[0-9]+_"),
                              "<time>_");
}

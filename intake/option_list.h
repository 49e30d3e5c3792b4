#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace intake {

/// An option of a job, without the quotes and backslashes of the text it came in.
struct Option {
    std::string name;
    std::string value;
    friend bool operator==(const Option&, const Option&) = default;
};

/// The options of a job. As in CUPS, names are the same in any case of letters, and none stands
/// twice.
class OptionList {
public:
    /// Takes the place of an option of this name.
    void set(std::string_view name, std::string_view value);
    void remove(std::string_view name);
    void remove(std::initializer_list<std::string_view> names);

    /// The value, or null. Good until the list is changed.
    const std::string* find(std::string_view name) const;
    /// Whether an option of this name is there with any value but an empty one.
    bool has(std::string_view name) const;
    const std::vector<Option>& all() const { return options_; }

    /// The text that cupsParseOptions reads back as these options, whatever is in their values.
    /// Names must be ones that it has read. Options whose text would be longer than
    /// `longestOption` are left out: no filter has a use for them, and a program's argument must
    /// not be longer than 128 KiB.
    std::string text() const;

    static constexpr std::size_t longestOption = 8192;

private:
    std::vector<Option> options_;
};

/// Whether a value means yes to CUPS's filters.
bool isYes(std::string_view value);

}  // namespace intake

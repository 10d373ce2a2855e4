#pragma once
#include <algorithm>
#include <initializer_list>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace CardRoom {

/// The command line's options: `--name value`, or `--name` for those that take none.
class Options {
 public:
  /// Throws `std::invalid_argument` for an option that is not named here.
  Options(int argc, char** argv, std::initializer_list<std::string_view> withValue,
          std::initializer_list<std::string_view> flags) {
    const auto isOneOf = [](auto names, std::string_view name) {
      return std::ranges::find(names, name) != names.end();
    };
    for (int i = 1; i < argc; ++i) {
      const std::string name = argv[i];
      if (isOneOf(flags, name))
        values_[name];
      else if (isOneOf(withValue, name) && i + 1 < argc)
        values_[name] = argv[++i];
      else
        throw std::invalid_argument("no such option: " + name);
    }
  }

  bool has(const std::string& name) const { return values_.contains(name); }
  std::string text(const std::string& name, const std::string& otherwise = "") const {
    const auto value = values_.find(name);
    return value == values_.end() ? otherwise : value->second;
  }
  /// Throws `std::invalid_argument` for what is no number.
  int number(const std::string& name, int otherwise) const { return has(name) ? std::stoi(text(name)) : otherwise; }

 private:
  std::map<std::string, std::string> values_;
};

}  // namespace CardRoom

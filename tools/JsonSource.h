#pragma once
#include <herald/inspect/FieldSource.h>

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace Tessel {

/// The fields that a JSON object holds, as the library prints them: "class" beside them is no field. The object must
/// outlive the source.
class JsonSource : public FieldSource {
 public:
  explicit JsonSource(const nlohmann::json& object);

  FieldValue find(std::string_view name) override;
  FieldValue next() override;
  void enter() override;
  std::string leave() override;

 private:
  struct Scope {
    const nlohmann::json* value;
    std::size_t nextItem = 0;
    std::vector<std::string_view> asked{};
  };

  FieldValue answer(const nlohmann::json& value);

  std::vector<Scope> open_;
  const nlohmann::json* last_ = nullptr;
  std::string spelling_;
};

}  // namespace Tessel

// A store of texts by application, section and key, for what belongs to the user rather than to a project.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <tuple>

namespace pitchcraft {

class KeyedStore {
 public:
  virtual ~KeyedStore() = default;
  /// The stored text, or nothing if the key was never written.
  virtual std::optional<std::string> Get(const std::string& application, const std::string& section,
                                         const std::string& key) const = 0;
  virtual void Set(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& text) = 0;
};

/// A store in memory only: for tests, and for a program without a place of its own.
class MemoryStore : public KeyedStore {
 public:
  std::optional<std::string> Get(const std::string& application, const std::string& section,
                                 const std::string& key) const override {
    const auto found = values_.find({application, section, key});
    return found == values_.end() ? std::nullopt : std::optional(found->second);
  }
  void Set(const std::string& application, const std::string& section, const std::string& key,
           const std::string& text) override {
    values_[{application, section, key}] = text;
  }
  /// Runs action(application, section, key, text) for everything stored, in order.
  template <typename Action>
  void ForEach(Action action) const {
    for (const auto& [address, text] : values_) std::apply(action, std::tuple_cat(address, std::tie(text)));
  }

 private:
  std::map<std::tuple<std::string, std::string, std::string>, std::string> values_;
};

}  // namespace pitchcraft

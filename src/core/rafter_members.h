// The members of a rafter's record by name: what a dump prints and a comparison of two records walks.
#pragma once

#include <span>
#include <string>
#include <variant>

#include "core/rafter.h"

namespace pitchcraft {

using MemberValue = std::variant<Single, double, int, bool, std::string>;

struct RafterMember {
  const char* Name;
  MemberValue (*Read)(const Rafter&);
};

/// Every public member of Rafter, in the order of its declaration.
std::span<const RafterMember> RafterMembers();

}  // namespace pitchcraft

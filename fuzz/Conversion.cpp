#include "Project.h"
#include "Surroundings.h"
#include "Targets.h"
#include "batch/OutcomeJson.h"

namespace vrek::fuzz {

void Conversion(std::string_view sBytes) {
  const auto Outcome = Convert(ReadProject(sBytes), OwnFolder(), "/dev/null");
  Require(Fault(Outcome).empty());
  Require(!batch::OutcomesAsJson({Outcome}).empty());
}

}  // namespace vrek::fuzz

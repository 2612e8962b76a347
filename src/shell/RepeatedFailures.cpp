#include "shell/RepeatedFailures.h"

#include "shell/ErrHandler.h"

namespace vrek {
namespace {

CRepeatedFailures* pWatching = nullptr;

}  // namespace

CRepeatedFailures::CRepeatedFailures() : m_bOutermost(pWatching == nullptr) {
  if (m_bOutermost) pWatching = this;
}

CRepeatedFailures::~CRepeatedFailures() {
  if (!m_bOutermost) return;
  pWatching = nullptr;
  for (const auto& [Key, nAgain] : m_aAgain) {
    if (nAgain == 0) continue;
    const auto& [nNumber, sSource, sDescription] = Key;
    try {
      LogMessage(sDescription + " in " + sSource + ": " + std::to_string(nAgain) + " times more");
    } catch (const Failure&) {
      // The failure itself has been told; that the log is missing, too.
    }
  }
}

bool CRepeatedFailures::IsNews(const Failure& Error) {
  if (pWatching == nullptr) return true;
  const auto [it, bNew] =
      pWatching->m_aAgain.try_emplace({Error.nNumber, Error.sSource, Error.sDescription}, 0);
  if (!bNew) ++it->second;
  return bNew;
}

}  // namespace vrek

#include "batch/BatchPlatform.h"

#include <cstdio>

#include "wizard/ctlProgress.h"

namespace vrek::batch {

ProgressLine::~ProgressLine() {
  if (!m_sShown.empty()) std::fputs("\r\033[K", stderr);
}

void ProgressLine::ProcessMessages() {
  if (!m_bDraw || !m_pPanel) return;
  constexpr int nWidth = 30;
  std::string sLine;
  if (m_pPanel->ProgressBar.Visible) {
    const auto nFilled =
        static_cast<std::size_t>(nWidth * m_pPanel->ProgressBar.Value / ctlProgress::dBarMax);
    sLine = "[" + std::string(nFilled, '#') + std::string(nWidth - nFilled, ' ') + "] ";
  }
  // The bar moves in steps that can be seen; the chainage beside it would redraw the line for each section.
  if (sLine.empty()) sLine = m_pPanel->lblInfo.Caption;
  if (sLine != m_sShown) Draw(sLine);
}

void ProgressLine::Draw(const std::string& sLine) {
  std::fprintf(stderr, "\r%s\033[K", sLine.c_str());
  m_sShown = sLine;
}

}  // namespace vrek::batch

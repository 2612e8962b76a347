// The parts of the wizard's window and how they lie. Measures come from the font and the screen's dots to the
// inch, so that the window looks alike on every screen.
#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "wizard/PreviewOf.h"
#include "wizard/qt/DetailsView.h"
#include "wizard/qt/ExportingView.h"
#include "wizard/qt/ImportingView.h"
#include "wizard/qt/JobView.h"
#include "wizard/qt/PreferencesView.h"
#include "wizard/qt/ResultView.h"
#include "wizard/qt/SelectStrLnView.h"
#include "wizard/qt/View.h"
#include "wizard/qt/WizardWindow.h"

namespace vrek::qt {
namespace {

// The window and its title band, in twips: 1440 to the inch.
constexpr int nWindowWidth = 8865, nWindowHeight = 6360, nTitleHeight = 975;

int FromTwips(int nTwips, int nDotsPerInch) {
  return nTwips * nDotsPerInch / 1440;
}

QFrame* HorizontalLine(QWidget* pParent) {
  auto* pLine = new QFrame(pParent);
  pLine->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  return pLine;
}

}  // namespace

void WizardWindow::MakePages() {
  m_pStack = new QStackedWidget(this);
  m_pFiles = new FilesView(m_Wizard.ctlFiles);
  m_aPages = {new JobView(m_Wizard.ctlJobType),
              m_pFiles,
              new DetailsView(m_Wizard.ctlDetails),
              new PreferencesView(m_Wizard.ctlPreferences),
              new ImportingView(m_Wizard.ctlImporting),
              new ExportingView(m_Wizard.ctlExporting),
              new ResultView(m_Wizard.ctlResult, [this] { return PreviewOf(m_Wizard); }),
              new SelectStrLnView(m_Wizard.ctlSelectStrLn)};
  for (auto* pPage : m_aPages) {
    m_pStack->addWidget(pPage);
    connect(pPage, &PageView::Used, this, &WizardWindow::Render);
    connect(pPage, &PageView::Told, this, &WizardWindow::ShowStatus);
  }
  m_pProgress = new ProgressPanel(m_Wizard.ctlProgress, m_pStack->parentWidget());
  m_pStack->installEventFilter(this);
}

void WizardWindow::LayOut() {
  auto* pLayout = new QVBoxLayout(this);
  pLayout->setContentsMargins(0, 0, 0, 0);
  pLayout->setSpacing(0);
  pLayout->addWidget(MakeTitleBand());
  pLayout->addWidget(m_pStack, 1);
  pLayout->addWidget(MakeButtons());
  resize(FromTwips(nWindowWidth, logicalDpiX()), FromTwips(nWindowHeight, logicalDpiY()));
}

QWidget* WizardWindow::MakeTitleBand() {
  m_pTitleBand = new QFrame(this);
  m_pTitleBand->setAutoFillBackground(true);
  m_pTitleBand->setBackgroundRole(QPalette::Base);
  m_pTitleBand->setMinimumHeight(FromTwips(nTitleHeight, logicalDpiY()));
  m_pTitle = new QLabel(m_pTitleBand);
  m_pSubTitle = new QLabel(m_pTitleBand);
  auto Font = m_pTitle->font();
  Font.setBold(true);
  Font.setPointSizeF(Font.pointSizeF() * 1.3);
  m_pTitle->setFont(Font);
  m_pTitle->setObjectName("lblTitle");
  m_pSubTitle->setObjectName("lblSubTitle");
  m_pSubTitle->setWordWrap(true);
  auto* pTexts = new QVBoxLayout;
  pTexts->addWidget(m_pTitle);
  pTexts->addWidget(m_pSubTitle);
  auto* pIcon = new QLabel(m_pTitleBand);
  const int nIcon = 2 * QFontMetrics(Font).height();
  pIcon->setPixmap(QIcon(":/vrek.svg").pixmap(QSize(nIcon, nIcon), devicePixelRatio()));
  auto* pRow = new QHBoxLayout;
  pRow->addLayout(pTexts, 1);
  pRow->addWidget(pIcon);
  auto* pBand = new QVBoxLayout(m_pTitleBand);
  pBand->addLayout(pRow, 1);
  pBand->addWidget(HorizontalLine(m_pTitleBand));
  pBand->setContentsMargins(pBand->contentsMargins().left(), 0, pBand->contentsMargins().right(), 0);
  return m_pTitleBand;
}

QPushButton* WizardWindow::MakeButton(const char* sName, void (WizardWindow::*pPressed)()) {
  auto* pButton = new QPushButton(m_pBand);
  pButton->setObjectName(sName);
  connect(pButton, &QPushButton::clicked, this, pPressed);
  return pButton;
}

QWidget* WizardWindow::MakeButtons() {
  m_pBand = new QWidget(this);
  m_pVersion = new QLabel(m_pBand);
  m_pVersion->setObjectName("lblVersion");
  m_pVersion->setForegroundRole(QPalette::PlaceholderText);
  m_pStatus = new QLabel(m_pBand);
  m_pStatus->setObjectName("lblStatus");
  m_pStatus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  m_pOpenFolder = MakeButton("cmdOpenFolder", &WizardWindow::OpenFolder);
  SetCaption(*m_pOpenFolder, Word("WIN_OPEN_FOLDER", "Open folder"));
  m_pBack = MakeButton("cmdBack", &WizardWindow::Back);
  m_pNext = MakeButton("cmdNext", &WizardWindow::Next);
  m_pCancel = MakeButton("cmdCancel", &WizardWindow::Cancel);
  auto* pLine = new QHBoxLayout;
  pLine->addWidget(m_pVersion);
  pLine->addWidget(HorizontalLine(m_pBand), 1);
  auto* pButtons = new QHBoxLayout;
  pButtons->addWidget(m_pStatus, 1);
  for (auto* pButton : {m_pOpenFolder, m_pBack, m_pNext, m_pCancel}) pButtons->addWidget(pButton);
  auto* pBand = new QVBoxLayout(m_pBand);
  pBand->setContentsMargins(pBand->contentsMargins().left(), 0, pBand->contentsMargins().right(),
                            pBand->contentsMargins().bottom());
  pBand->addLayout(pLine);
  pBand->addLayout(pButtons);
  return m_pBand;
}

}  // namespace vrek::qt

#include "wizard/qt/PreviewView.h"

#include <QHBoxLayout>
#include <QImage>
#include <QPainter>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "preview/SvgPlot.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "wizard/qt/SaveBytes.h"
#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

constexpr double dClickDistance = 8;  // device units
constexpr int nImageScale = 2;        // pixels of a saved picture to a device unit

TPlotWords PlotWords() {
  const auto W = [](const char* sToken, const std::string& sEnglish) {
    return Text(Word(sToken, sEnglish.c_str()));
  };
  const TPlotWords English;
  return {W("WIN_STRAIGHT", English.sStraight),   W("WIN_ARC", English.sArc),
          W("WIN_SPIRAL", English.sSpiral),       W("WIN_CHAINAGE", English.sChainage),
          W("WIN_LENGTH", English.sLength),       W("WIN_RADIUS", English.sRadius),
          W("WIN_PARAMETER", English.sParameter), W("WIN_LEFT", English.sLeft),
          W("WIN_RIGHT", English.sRight),         W("WIN_RAILS", English.sRail),
          W("WIN_NOTHING", English.sNothing),     W("WIN_HEIGHTS", English.sHeights)};
}

std::string AsPng(const TDrawing& Drawing) {
  QImage Image(static_cast<int>(Drawing.dWidth) * nImageScale,
               static_cast<int>(Drawing.dHeight) * nImageScale, QImage::Format_RGB32);
  Image.fill(Qt::white);
  QPainter Painter(&Image);
  Painter.scale(nImageScale, nImageScale);
  DrawingView::Paint(Painter, Drawing, false);
  Painter.end();
  return ImageBytes(Image, "PNG");
}

}  // namespace

PreviewView::PreviewView(QWidget* pParent)
    : QWidget(pParent),
      m_Words(PlotWords()),
      m_pTabs(new QTabBar(this)),
      m_pFit(new QPushButton(this)),
      m_pSave(new QPushButton(this)),
      m_pPicture(new DrawingView(this)),
      m_pAligment(new QComboBox(this)),
      m_pSection(new QSlider(Qt::Horizontal, this)),
      m_pInfo(new QLabel(this)) {
  SetTexts();
  SetNames();
  LayOut();
  connect(m_pTabs, &QTabBar::currentChanged, this, [this] { ShowPicture(false); });
  connect(m_pFit, &QPushButton::clicked, m_pPicture, &DrawingView::Fit);
  connect(m_pSave, &QPushButton::clicked, this, &PreviewView::SavePicture);
  connect(m_pPicture, &DrawingView::Clicked, this, &PreviewView::Select);
  connect(m_pSection, &QSlider::valueChanged, this, [this] { ShowPicture(false); });
  connect(m_pAligment, &QComboBox::currentIndexChanged, this, [this] {
    ShowSectionControls();
    ShowPicture(false);
  });
}

void PreviewView::SetTexts() {
  m_pTabs->addTab(Word("WIN_PLAN", "Plan"));
  m_pTabs->addTab(Word("WIN_PROFILE", "Profile"));
  m_pTabs->addTab(Word("WIN_SECTION", "Section"));
  m_pTabs->setAccessibleName(Word("WIN_PICTURE", "Drawing of what was written"));
  m_pTabs->setDrawBase(false);
  m_pTabs->setElideMode(Qt::ElideNone);
  m_pTabs->setUsesScrollButtons(false);
  SetCaption(*m_pFit, Word("WIN_FIT", "Fit"));
  SetCaption(*m_pSave, Word("WIN_SAVE_PICTURE", "Save picture..."));
  m_pPicture->setAccessibleName(Word("WIN_PICTURE", "Drawing of what was written"));
  m_pPicture->setToolTip(
      Word("WIN_PICTURE_KEYS", "Drag or arrow keys: move. Wheel, + and -: zoom. 0: the whole."));
  m_pAligment->setAccessibleName(Word("WIN_ALIGMENT", "Alignment"));
  m_pSection->setAccessibleName(Word("WIN_SECTION", "Section"));
  m_pInfo->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_pInfo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void PreviewView::SetNames() {
  m_pTabs->setObjectName("tabPicture");
  m_pFit->setObjectName("cmdFit");
  m_pSave->setObjectName("cmdSavePicture");
  m_pPicture->setObjectName("picResult");
  m_pSection->setObjectName("sldSection");
  m_pAligment->setObjectName("cmbAligment");
  m_pInfo->setObjectName("lblElement");
}

void PreviewView::LayOut() {
  auto* pUpper = new QHBoxLayout;
  pUpper->addWidget(m_pTabs);
  pUpper->addStretch(1);
  pUpper->addWidget(m_pFit);
  pUpper->addWidget(m_pSave);
  auto* pLower = new QHBoxLayout;
  pLower->addWidget(m_pAligment);
  pLower->addWidget(m_pSection, 1);
  pLower->addWidget(m_pInfo, 1);
  auto* pLayout = new QVBoxLayout(this);
  pLayout->setContentsMargins(0, 0, 0, 0);
  pLayout->addLayout(pUpper);
  pLayout->addWidget(m_pPicture, 1);
  pLayout->addLayout(pLower);
}

void PreviewView::Show(TPreview Shown) {
  m_Shown = std::move(Shown);
  m_Selected = {};
  FillAligments();
  ShowSectionControls();
  ShowPicture(false);
}

void PreviewView::FillAligments() {
  const QSignalBlocker Quiet(m_pAligment);
  m_pAligment->clear();
  for (std::size_t n = 0; n < m_Shown.aAligments.size(); ++n) {
    const auto& Aligment = m_Shown.aAligments[n];
    if (!Aligment.aSections.empty()) m_pAligment->addItem(Text(Aligment.sName), static_cast<int>(n));
  }
  m_pTabs->setTabEnabled(eSection, m_pAligment->count() > 0);
}

// The slider runs over the sections of the alignment chosen.
void PreviewView::ShowSectionControls() {
  const QSignalBlocker Quiet(m_pSection);
  const int nCount =
      m_pAligment->count() == 0
          ? 0
          : static_cast<int>(m_Shown.aAligments[m_pAligment->currentData().toUInt()].aSections.size());
  m_pSection->setRange(0, std::max(nCount - 1, 0));
  m_pSection->setValue(0);
}

const TPreviewSection* PreviewView::Section() const {
  if (m_pAligment->count() == 0) return nullptr;
  const auto& aSections = m_Shown.aAligments[m_pAligment->currentData().toUInt()].aSections;
  return &aSections[static_cast<std::size_t>(m_pSection->value())];
}

TDrawingContent PreviewView::Content() const {
  if (m_pTabs->currentIndex() == eProfile) {
    return {[this](const TViewport& View) { return Drawing::DrawProfile(m_Shown, View, m_Words); },
            Drawing::ExtentOfProfile(m_Shown), false};
  }
  if (const auto* pSection = Section(); pSection && m_pTabs->currentIndex() == eSection) {
    return {
        [this, pSection](const TViewport& View) { return Drawing::DrawSection(*pSection, View, m_Words); },
        Drawing::ExtentOfSection(*pSection), true};
  }
  return {[this](const TViewport& View) { return Drawing::DrawPlan(m_Shown, View, m_Selected, m_Words); },
          Drawing::ExtentOfPlan(m_Shown), true};
}

void PreviewView::ShowPicture(bool bKeepPlace) {
  const bool bSection = m_pTabs->currentIndex() == eSection;
  m_pSection->setVisible(bSection);
  m_pAligment->setVisible(bSection && m_pAligment->count() > 1);
  m_pInfo->setVisible(m_pTabs->currentIndex() == ePlan);
  m_pPicture->SetContent(Content(), bKeepPlace);
}

void PreviewView::Select(const QPointF& At) {
  if (m_pTabs->currentIndex() != ePlan) return;
  const auto Place = m_pPicture->ToMetres(At);
  m_Selected = Preview::FindElement(m_Shown, Place.dX, Place.dY, dClickDistance / m_pPicture->View().dScaleX);
  QString sText;
  if (m_Selected.IsGiven()) {
    const auto& Aligment = m_Shown.aAligments[static_cast<std::size_t>(m_Selected.nAligment)];
    const auto& Element = Aligment.aElements[static_cast<std::size_t>(m_Selected.nElement)];
    sText = Text(Aligment.sName + ": " + Drawing::DescribeElement(Element, m_Words));
  }
  m_pInfo->setText(sText);
  m_pInfo->setToolTip(sText);
  ShowPicture(true);
}

void PreviewView::SavePicture() {
  const auto sPath = AppModel().Platform().pDialogs->SaveFile(
      "PNG (*.png)|*.png|SVG (*.svg)|*.svg", Text(m_pTabs->tabText(m_pTabs->currentIndex())) + ".png");
  if (sPath.empty()) return;
  const auto Picture = m_pPicture->Drawing();
  const bool bSvg = Text(sPath).endsWith(".svg", Qt::CaseInsensitive);
  TopLevel([&] { SaveBytes(sPath, bSvg ? SvgPlot::AsSvg({Picture}) : AsPng(Picture)); });
}

}  // namespace vrek::qt

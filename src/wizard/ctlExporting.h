// ctlExporting: the Exporting page: the range of chainage that goes to the output and, for a road with
// cross-sections, the layers. It keeps no data but what its boxes and its list show.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "wizard/Parts.h"

namespace vrek {

class ctlExporting {
 public:
  void UpdateText();

  /// Chainages in metres, read from the boxes (a comma counts as a point, no number as 0); set with 3
  /// decimals.
  double ChainageStart() const;
  void SetChainageStart(double dValue);
  double ChainageEnd() const;
  void SetChainageEnd(double dValue);

  bool LayersVisible() const { return frLayers.Visible; }
  void SetLayersVisible(bool bVisible) { frLayers.Visible = bVisible; }

  /// Adds an entry, checked. A negative number gives it its own index.
  void AddLayer(std::string_view sLayername, int lItemData);
  bool IsLayerActive(int nItem) const;
  /// "$Taludes$Rasante$", or "__None__".
  std::string GetSelectedLayers() const;
  /// "$0$3$", or empty.
  std::string GetSelectedLayersIdx() const;
  void ClearLayers() { lstLayers.Items.clear(); }

  // What a person does.
  void cmdSelect_Click(int nIndex);  ///< 0 all, 1 none
  void lstLayers_ItemCheck(int nItem, bool bChecked);

  TPart frExporting, frChainages, frLayers;
  std::array<TTextBox, 2> txtChainage;
  std::array<TPart, 2> lblChainage, cmdSelect;
  TListBox lstLayers;
};

}  // namespace vrek

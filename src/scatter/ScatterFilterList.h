#pragma once

#include <vector>

#include "desk/Messages.h"
#include "model/Catalogue.h"
#include "presets/clsScatterFilter.h"
#include "ui/CommandButton.h"
#include "ui/ListView.h"

namespace tarnview {

/// The columns of a list of filters.
inline std::vector<ListView::Column> FilterColumns() {
  return {{"Item"}, {"From", true}, {"To", true}};
}

/// The filters of a scatter graph with the list that shows them and the buttons that change them.
/// The log family says of which items filters can be.
class ScatterFilterList {
 public:
  struct Controls {
    ListView& lvwFilters;  ///< with FilterColumns
    CommandButton& cmdFilterNew;
    CommandButton& cmdFilterMod;
    CommandButton& cmdFilterDelete;
  };
  /// What it asks of the program.
  struct Surroundings {
    const Catalogue& catalogue;
    Messages& messages;
  };
  ScatterFilterList(const Controls& controls, const Surroundings& surroundings);

  /// Other items: the rows are written anew, and filters on what is not displayed any more are
  /// dropped.
  void SetLogFamily(int lngLogFamily);

  const clsScatterFilters& objFilters() const { return filters_; }
  /// Takes the filters as they stand.
  void SetFilters(clsScatterFilters objFilters);
  /// Adds one at the end.
  void AddFilter(const clsScatterFilter& objFilter);

 private:
  void PopulateFiltersListView(int selectRow);
  ListView::Row RowOf(const clsScatterFilter& filter, int position) const;
  bool NewFilterDetails(clsScatterFilter& filter, bool blnNew);
  void NewFilter();
  void ModifyFilter();
  void DeleteFilter();
  /// The position of the selected row's filter; 0 for none.
  int Selected() const;

  Controls controls_;
  Surroundings around_;
  clsScatterFilters filters_;
  int family_ = 1;
};

}  // namespace tarnview

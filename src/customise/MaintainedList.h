#pragma once

#include <functional>
#include <string>
#include <utility>

namespace tarnview {

/// Anything that the list maintenance window keeps. Positions count from 1.
class MaintainedList {
 public:
  virtual ~MaintainedList() = default;

  virtual int Count() const = 0;
  virtual std::string strName(int position) const = 0;
  /// The log family of a preset; 0 in a list that knows no families.
  virtual int lngLogFamily(int position) const = 0;
  virtual bool HasFamilies() const = 0;

  /// Lets the user fill in a blank record, of that family in a list that knows families; at the end
  /// of the list on OK.
  virtual bool New(int lngLogFamily) = 0;
  /// Lets the user work on a copy of a record, which takes its place on OK.
  virtual bool Modify(int position) = 0;
  virtual void Remove(int position) = 0;
  /// Takes the record out and puts it back at another position.
  virtual void Move(int from, int to) = 0;
};

/// A working copy of a collection of records, with the window that edits one of them.
template <class Collection>
class MaintainedCollection : public MaintainedList {
 public:
  using Record = typename Collection::Record;
  /// Shows the detail window; true on OK, with what the user made of the record in it.
  using DetailWindow = std::function<bool(Record&)>;

  MaintainedCollection(const Collection& col, DetailWindow edit)
      : Col(col.Duplicate()), edit_(std::move(edit)) {}

  Collection Col;

  int Count() const override { return Col.Count(); }
  std::string strName(int position) const override { return Col.Item(position).strName; }
  int lngLogFamily(int position) const override {
    if constexpr (kFamilies)
      return Col.Item(position).lngLogFamily;
    else
      return 0;
  }
  bool HasFamilies() const override { return kFamilies; }

  bool New(int lngLogFamily) override {
    Record record = Collection::BlankPreset();
    if constexpr (kFamilies) record.lngLogFamily = lngLogFamily;
    if (!edit_(record)) return false;
    Col.AddDirect(std::move(record));
    return true;
  }
  bool Modify(int position) override {
    Record record = Col.Item(position).Duplicate();
    if (!edit_(record)) return false;
    Col.AddDirect(std::move(record), position);
    Col.Remove(position + 1);
    return true;
  }
  void Remove(int position) override { Col.Remove(position); }
  void Move(int from, int to) override {
    Record record = std::move(Col.Item(from));
    Col.Remove(from);
    Col.AddDirect(std::move(record), to);
  }

 private:
  static constexpr bool kFamilies = requires(Record record) { record.lngLogFamily; };

  DetailWindow edit_;
};

}  // namespace tarnview

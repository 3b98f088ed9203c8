#ifndef HYDROFACTS_DEMO_VALVEPAGE_H
#define HYDROFACTS_DEMO_VALVEPAGE_H

#include <memory>

#include "demo/Page.h"

namespace demo {

/// Fittings and valves: a table, one of five kinds, a device from the tree; those that the user has
/// chosen in a second tree.
class ValvePage : public Page {
  public:
    explicit ValvePage(Site& site) : Page(site) {}

    void Relabel() override;
    void UnitsChanged(const Units& before) override;
    std::string Summary() const override;

  protected:
    win32::DialogBuilder Form() const override;
    std::span<const Label> Labels() const override;
    std::span<const Following> Follows() const override;
    void Init() override;
    bool Command(int control, int code, LPARAM lParam) override;
    bool Notify(const NMHDR& header) override;

  private:
    void LoadTable();
    void ShowDevice();
    void Add();
    void Remove();
    int KindShown() const;

    std::unique_ptr<CValveTableDlg> valves_;  // needs the dialog
    const CValveType* device_ = nullptr;      // of the table that is loaded
};

}  // namespace demo

#endif

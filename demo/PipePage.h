#ifndef HYDROFACTS_DEMO_PIPEPAGE_H
#define HYDROFACTS_DEMO_PIPEPAGE_H

#include "demo/Page.h"

namespace demo {

/// A pipe: material and schedule from the tree, nominal size from the combo box.
class PipePage : public Page {
  public:
    explicit PipePage(Site& site) : Page(site), pipe_(site.units.bUS() ? HF_US : HF_METRIC) {}

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
    void ShowUnits();
    void FillAnew();

    CPipeTableDlg pipe_;
};

}  // namespace demo

#endif

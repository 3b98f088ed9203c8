#ifndef HYDROFACTS_DEMO_CONDITIONSPAGE_H
#define HYDROFACTS_DEMO_CONDITIONSPAGE_H

#include "demo/FluidPage.h"

namespace demo {

/// Other conditions for the fluid that is chosen on the page Fluid: its name and state stay.
class ConditionsPage : public Page {
  public:
    ConditionsPage(Site& site, FluidPage& chosen)
        : Page(site), chosen_(chosen), fluid_(&site.units) {}

    void Show(bool show) override;
    void Relabel() override;
    void UnitsChanged(const Units& before) override;
    void Enter() override { TakeOver(); }

  protected:
    win32::DialogBuilder Form() const override;
    std::span<const Label> Labels() const override;
    std::span<const Following> Follows() const override;
    void Init() override;
    bool Command(int control, int code, LPARAM lParam) override;

  private:
    void TakeOver();
    void ShowChosen();
    void ShowState();

    FluidPage& chosen_;
    CFluidDlg fluid_;
};

}  // namespace demo

#endif

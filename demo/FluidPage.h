#ifndef HYDROFACTS_DEMO_FLUIDPAGE_H
#define HYDROFACTS_DEMO_FLUIDPAGE_H

#include "demo/Page.h"
#include "demo/PropertyCurve.h"

namespace demo {

/// A fluid from the list at a set point, or one with typed properties; a property over temperature
/// beside it.
class FluidPage : public Page {
  public:
    explicit FluidPage(Site& site) : Page(site), fluid_(&site.units) {}

    CFluid& Fluid() { return fluid_; }
    /// Goes to other conditions, in user units; what was typed by hand stays as it is.
    void SetConditions(double temperature, double pressure);

    void Relabel() override;
    void UnitsChanged(const Units& before) override;
    std::string Summary() const override;
    void Enter() override { TakeOver(); }

  protected:
    win32::DialogBuilder Form() const override;
    std::span<const Label> Labels() const override;
    std::span<const Following> Follows() const override;
    void Init() override;
    bool Command(int control, int code, LPARAM lParam) override;
    bool Other(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    bool IsPicked() const;
    void Update();
    void EnableTyping();
    void TakeOver();
    void FillPlots();
    void ShowUnits();
    void ConvertListed(const Units& before);
    void ConvertTyped(const Units& before);

    mutable CFluidDlg fluid_;
    PropertyCurve curve_;
    bool complete_ = false;  ///< the properties of an own fluid that was taken over
};

}  // namespace demo

#endif

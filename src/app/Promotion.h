#pragma once

namespace guide {

/// Advertising, measurement and consent, where a build has a provider of them. Main queue.
class Promotion {
  public:
    virtual ~Promotion() = default;
    /// Before anything else of the launch that could be measured.
    virtual void startMeasurementAndAds() = 0;
    /// At the end of the launch, when there is a window to ask in.
    virtual void configureConsent() = 0;
    /// At each activation.
    virtual void prepareInterstitialWhenDue() = 0;
};

/// No provider: nothing is shown, measured or asked.
class AbsentPromotion : public Promotion {
  public:
    void startMeasurementAndAds() override {}
    void configureConsent() override {}
    void prepareInterstitialWhenDue() override {}
};

} // namespace guide

#pragma once

namespace guide {

/// Advertising, usage measurement and consent. Builds without a provider use this class itself, which does
/// nothing. Main queue.
class Promotion {
  public:
    virtual ~Promotion() = default;
    /// At the start of the launch, before anything that could be measured.
    virtual void startMeasurementAndAds() {}
    /// At the end of the launch, when there is a window for the question.
    virtual void configureConsent() {}
    /// At each activation.
    virtual void prepareInterstitialWhenDue() {}
};

} // namespace guide

#pragma once

#include "catalogs/flat_catalog_controller.h"
#include "catalogs/measurement_view.h"

namespace zelvor {

// The catalog of units and packs. Several may stand side by side, one in each product form: they tell each
// other of their writes.
class MeasurementViewController : public FlatCatalogController<Measurement> {
public:
    explicit MeasurementViewController(AppDelegate& owner);

    MeasurementView view{*this};
    Popover measurementPopover{QStringLiteral("measurementPopover")};
    Label measurementPopoverTitle{QStringLiteral("measurementPopoverTitle")};
    TextField measurementName{QStringLiteral("measurementName")};
    TextField measurementShortName{QStringLiteral("measurementShortName")};
    Label measurementWarning{QStringLiteral("measurementWarning")};
    Button okButton{QStringLiteral("okButton")};

    void addMeasurement();
    void editMeasurement();
    void cancelMeasurementPopover();
    void writeMeasurement() { writeForm(); }
    bool updateMeasurement(const std::shared_ptr<Measurement>& unit) { return updateRecord(*unit); }
    void bindFields() override;
    void backBindFields() override;
    void clearMeasurementPopover() { clearForm(); }
    void prepareMeasurements() { prepare(); }
    // The name of a new unit, or a null text.
    void postNotification(const QString& name);
    void postCancelNotification();
    void updateSelf(const Notification& notification);

protected:
    CatalogListView<Measurement>& list() override { return view; }
    CatalogForm form() override
    {
        return {measurementPopover, measurementPopoverTitle, measurementName, measurementWarning, okButton};
    }
    void announceWritten(const Measurement& unit, bool isNew) override;
    void announceUpdated(const Measurement&) override { postNotification({}); }
};

} // namespace zelvor

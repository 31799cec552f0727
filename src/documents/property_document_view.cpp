#include "documents/property_document_view.h"

#include "core/localized.h"
#include "documents/property_document_view_controller.h"

namespace zelvor {

namespace {

// The longest deferment that makes sense: a hundred years of days.
constexpr Decimal longestDeferment{36'500};

bool isDuration(const NumberField& field)
{
    return field.value() >= Decimal(0);
}

} // namespace

PropertyDocumentView::PropertyDocumentView(PropertyDocumentViewController& controller)
    : BaseView(QString(), redColor), m_controller(controller)
{
    writeLabels();
    bindFields();
}

PropertyDocument& PropertyDocumentView::document() const
{
    return *m_controller.document;
}

void PropertyDocumentView::writeLabels()
{
    propertyLabel.setText(localized("Fixed Asset"));
    contragentLabel.setText(localized("Counterparty"));
    sumLabel.setText(localized("Sum"));
    deleteBasisLabel.setText(localized("Reason"));
    periodLabel.setText(localized("Period"));
    defermentLabel.setText(localized("Deferment"));
}

void PropertyDocumentView::bindFields()
{
    date.onUserChange = [this] {
        document().date = date.moment();
        checkControlls();
    };
    propertyName.onUserChange = [this] {
        document().property.edit().name = propertyName.text();
        checkControlls();
    };
    amortizedCheck.onUserChange = [this] {
        document().property.edit().isAmortized = amortizedCheck.isOn();
        checkControlls();
    };
    deleteBasisSelect.onUserChange = [this] {
        m_controller.setDeleteBasisFromID(deleteBasisSelect.selectedTag());
    };
    comment.onUserChange = [this] {
        document().comment = comment.text();
        checkControlls();
    };
    confirmButton.onUserChange = [this] { m_controller.confirmDoc(); };
}

void PropertyDocumentView::showDocument()
{
    date.setMoment(document().date);
    amortizedCheck.setOn(document().property->isAmortized);
    comment.setText(document().comment);
    showParties();
    enableFields();
    checkControlls();
}

void PropertyDocumentView::showParties()
{
    contragentField.setText(document().contragentName());
    propertyName.setText(document().property->name);
    const DeleteBasis* basis = document().deleteBasis.shared().get();
    if (!deleteBasisSelect.selectTag(basis ? basis->id : 0) && basis) {
        std::vector<PopUpButton::Item> items = deleteBasisSelect.items();
        items.push_back({.title = basis->name, .tag = basis->id});
        deleteBasisSelect.setItems(std::move(items));
        deleteBasisSelect.selectTag(basis->id);
    }
}

void PropertyDocumentView::enableFields()
{
    const bool open = !document().confirmed;
    date.setEnabled(open);
    comment.setEnabled(open);
    propertyName.setEnabled(open && m_controller.propertyTextEnabled());
    amortizedCheck.setEnabled(open && m_controller.controlsEnabled());
    contragentField.setEnabled(open && m_controller.contragentEnabled());
    deleteBasisSelect.setEnabled(open && m_controller.deleteBasisEnabled());
    deleteBasisSelect.setHidden(m_controller.deleteBasisHidden());
    deleteBasisLabel.setHidden(m_controller.deleteBasisHidden());
}

// Where no sum is asked for, whatever the field shows is stored, so it must at least be a sum.
bool PropertyDocumentView::sumIsAcceptable() const
{
    const Decimal sum = m_controller.docSum.value().rounded(PropertyDocument::decimalHandler);
    const bool bigEnough = m_controller.sumEnabled() ? sum.isPositive() : sum >= Decimal(0);
    return bigEnough && DocumentViewController::isStorable(sum);
}

bool PropertyDocumentView::hasProperty() const
{
    if (m_controller.propertyTextEnabled())
        return !document().property->name.trimmed().isEmpty();
    return document().propertyID != 0 && !document().property.isEmpty();
}

std::vector<PropertyDocumentView::Required> PropertyDocumentView::required() const
{
    using View = PropertyDocumentView;
    std::vector<Required> fields{{&View::propertyLabel, hasProperty()}};
    if (m_controller.contragentEnabled())
        fields.push_back({&View::contragentLabel, !document().contragent.isEmpty()});
    fields.push_back({&View::sumLabel, sumIsAcceptable()});
    if (m_controller.deleteBasisEnabled())
        fields.push_back({&View::deleteBasisLabel, !document().deleteBasis.isEmpty()});
    if (m_controller.controlsEnabled())
        fields.push_back({&View::periodLabel, isDuration(m_controller.amortizationPeriod)});
    if (m_controller.contragentEnabled()) {
        const bool sensible = m_controller.deferment.value() <= longestDeferment;
        fields.push_back({&View::defermentLabel, isDuration(m_controller.deferment) && sensible});
    }
    return fields;
}

QStringList PropertyDocumentView::missingInputs() const
{
    QStringList missing;
    for (const Required& field : required()) {
        if (!field.filled)
            missing.push_back((this->*field.label).text());
    }
    return missing;
}

void PropertyDocumentView::checkControlls()
{
    bool complete = true;
    for (const Required& field : required()) {
        (this->*field.label).setColor(field.filled ? inOrderColor : redColor);
        complete = complete && field.filled;
    }
    confirmButton.setEnabled(!document().confirmed && complete);
}

} // namespace zelvor

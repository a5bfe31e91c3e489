// SPDX-License-Identifier: MIT
#include "RecordingHostItems.h"

#include "RecordingHostControl.h"

#include <algorithm>
#include <compare>
#include <stdexcept>

namespace zbtest {

namespace {

//! The flat item behind an item of either kind.
RecordingItem* FlatOf(zbIBrowserDataItem* item) {
    if (auto* const flat = dynamic_cast<RecordingItem*>(item)) {
        return flat;
    }
    auto* const inTree = dynamic_cast<RecordingTreeItem*>(item);
    return inTree == nullptr ? nullptr : inTree->flat;
}

bool IsNumber(zbVariant const& value) {
    return value.GetKind() >= zbVariant::Integer && value.GetKind() <= zbVariant::Double6;
}

bool IsWhole(zbVariant const& value) {
    return value.GetKind() == zbVariant::Integer || value.GetKind() == zbVariant::Long64;
}

long long WholeOf(zbVariant const& value) {
    return value.GetKind() == zbVariant::Integer ? value.GetInteger() : value.GetLong64();
}

double NumberOf(zbVariant const& value) {
    return IsWhole(value) ? static_cast<double>(WholeOf(value)) : value.GetDouble();
}

int Sign(std::partial_ordering order) {
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

int CompareValues(std::optional<zbVariant> const& a, std::optional<zbVariant> const& b) {
    if (!a || !b) {
        return static_cast<int>(a.has_value()) - static_cast<int>(b.has_value());
    }
    if (IsNumber(*a) && IsNumber(*b)) {
        return Sign(NumberOf(*a) <=> NumberOf(*b));
    }
    return Sign(ToText(*a) <=> ToText(*b));
}

zbBrowserTypeId NextTypeId() {
    static zbBrowserTypeId last = 0;
    return ++last;
}

} // namespace

RecordingItem::RecordingItem(RecordingHostCalls& calls, RecordingSource* itsSource,
                             std::string name, int id)
    : source(itsSource)
    , calls_(calls)
    , name_(std::move(name))
    , id_(id) {
    calls_.Remember(static_cast<zbIBrowserDataItem*>(this), name_);
}

RecordingItem& RecordingItem::Set(std::string const& property, zbVariant value) {
    values_[property] = std::move(value);
    return *this;
}

std::optional<zbVariant> RecordingItem::Value(std::string const& property) const {
    if (property == "name") {
        return zbVariant(name_.c_str());
    }
    if (property == "id") {
        return zbVariant(id_);
    }
    auto const found = values_.find(property);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

void RecordingItem::Rename(std::string name) {
    name_ = std::move(name);
    calls_.Remember(static_cast<zbIBrowserDataItem*>(this), name_);
}

zbIBrowserDataSourceSimple* RecordingItem::GetDataSource() const {
    calls_.Asked("GetDataSource", name_);
    return source;
}

bool RecordingItem::GetProperty(char const* key, zbString& value) {
    calls_.Called("GetProperty", name_, {key});
    auto const found = Value(key);
    if (found) {
        value = ToText(*found);
    }
    return found.has_value();
}

bool RecordingItem::IsDirty() const {
    calls_.Called("IsDirty", name_);
    return dirty;
}

RecordingProperty::RecordingProperty(RecordingHostCalls& calls, RecordingDataCtrl* control,
                                     std::string name)
    : calls_(calls)
    , control_(control)
    , name_(std::move(name)) {
}

std::optional<zbVariant> RecordingProperty::Read(char const* reader,
                                                 zbIBrowserDataItem* item) const {
    calls_.Called(reader, name_, {calls_.NameOf(item)});
    RecordingItem const* const flat = FlatOf(item);
    return readable && flat != nullptr ? flat->Value(name_) : std::nullopt;
}

bool RecordingProperty::GetDisplayText(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/,
                                       zbString& out) {
    auto const value = Read("GetDisplayText", item);
    if (value) {
        out = ToText(*value);
    }
    return value.has_value();
}

bool RecordingProperty::GetInteger(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/,
                                   int& out) {
    auto const value = Read("GetInteger", item);
    if (!value || !IsWhole(*value)) {
        return false;
    }
    out = static_cast<int>(WholeOf(*value));
    return true;
}

bool RecordingProperty::GetUnsigned(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/,
                                    unsigned& out) {
    auto const value = Read("GetUnsigned", item);
    if (!value || !IsWhole(*value) || WholeOf(*value) < 0) {
        return false;
    }
    out = static_cast<unsigned>(WholeOf(*value));
    return true;
}

bool RecordingProperty::GetBoolean(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/,
                                   bool& out) {
    auto const value = Read("GetBoolean", item);
    if (!value || value->GetKind() != zbVariant::Boolean) {
        return false;
    }
    out = value->GetBoolean();
    return true;
}

char const* RecordingProperty::GetTextPointer(zbIBrowserDataItem* item,
                                              zbIBrowserDataItem* /*parent*/) {
    auto const value = Read("GetTextPointer", item);
    if (!value || value->GetKind() != zbVariant::String) {
        return nullptr;
    }
    lastText_ = value->GetString();
    return lastText_.c_str();
}

bool RecordingProperty::GetString(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/,
                                  zbString& out) {
    auto const value = Read("GetString", item);
    if (value) {
        out = ToText(*value);
    }
    return value.has_value();
}

bool RecordingProperty::GetDouble(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/,
                                  double& out) {
    auto const value = Read("GetDouble", item);
    if (!value || !IsNumber(*value)) {
        return false;
    }
    out = NumberOf(*value);
    return true;
}

bool RecordingProperty::GetVariant(zbVariant& out) {
    auto const value = Read("GetVariant", control_ == nullptr ? nullptr : control_->current);
    if (value) {
        out = *value;
    }
    return value.has_value();
}

bool RecordingProperty::SetVariant(zbVariant value) {
    zbIBrowserDataItem* const item = control_ == nullptr ? nullptr : control_->current;
    calls_.Called("SetVariant", name_, {calls_.NameOf(item), ToText(value)});
    RecordingItem* const flat = FlatOf(item);
    if (flat == nullptr) {
        return false;
    }
    flat->Set(name_, std::move(value));
    return true;
}

RecordingSourceAnswers::RecordingSourceAnswers(RecordingHostCalls& calls,
                                               RecordingDataCtrl* itsControl, std::string name)
    : control(itsControl)
    , typeId(NextTypeId())
    , calls_(calls)
    , name_(std::move(name)) {
    static_cast<void>(Property("name"));
    static_cast<void>(Property("id"));
}

RecordingProperty& RecordingSourceAnswers::Property(std::string const& name) {
    auto& property = properties_[name];
    if (property == nullptr) {
        property = std::make_unique<RecordingProperty>(calls_, control, name);
    }
    return *property;
}

RecordingProperty* RecordingSourceAnswers::Find(char const* name) {
    auto const found = properties_.find(name);
    return found == properties_.end() ? nullptr : found->second.get();
}

bool RecordingSourceAnswers::Compare(char const* operation, std::string const& property,
                                     zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) {
    calls_.Called(operation, name_, {calls_.NameOf(a), calls_.NameOf(b)});
    RecordingItem const* const left = FlatOf(a);
    RecordingItem const* const right = FlatOf(b);
    if (!compares || left == nullptr || right == nullptr) {
        return false;
    }
    cmp = CompareValues(left->Value(property), right->Value(property));
    return true;
}

template <class Interface>
zbIBrowserDataCtrl* RecordingSourceBase<Interface>::GetDataCtrl() {
    calls_.Asked("GetDataCtrl", name_);
    return control;
}

template <class Interface>
char const* RecordingSourceBase<Interface>::GetName() const {
    calls_.Asked("GetName", name_);
    return name_.c_str();
}

template <class Interface>
zbBrowserTypeId RecordingSourceBase<Interface>::GetTypeId() {
    calls_.Asked("GetTypeId", name_);
    return typeId;
}

template <class Interface>
bool RecordingSourceBase<Interface>::IsDirty() const {
    calls_.Called("IsDirty", name_);
    return dirty;
}

template <class Interface>
bool RecordingSourceBase<Interface>::GetFolderScriptText(zbIBrowserViewItemFreeFolder* /*folder*/,
                                                         zbString& /*out*/) {
    calls_.Called("GetFolderScriptText", name_);
    return false;
}

template <class Interface>
zbIBrowserDataProperty* RecordingSourceBase<Interface>::FindDataProperty(char const* name) {
    calls_.Called("FindDataProperty", name_, {name});
    return Find(name);
}

template <class Interface>
void RecordingSourceBase<Interface>::SetDataPropertyInteger(zbIBrowserDataItem* item,
                                                            zbIBrowserDataProperty* property,
                                                            int value) {
    calls_.Called("SetDataPropertyInteger", name_, {calls_.NameOf(item), std::to_string(value)});
    auto* const known = dynamic_cast<RecordingProperty*>(property);
    if (RecordingItem* const flat = FlatOf(item); flat != nullptr && known != nullptr) {
        flat->Set(known->Name(), value);
    }
}

template <class Interface>
void RecordingSourceBase<Interface>::SetDataPropertyBoolean(zbIBrowserDataItem* item,
                                                            zbIBrowserDataProperty* property,
                                                            bool value) {
    calls_.Called("SetDataPropertyBoolean", name_, {calls_.NameOf(item), value ? "true" : "false"});
    auto* const known = dynamic_cast<RecordingProperty*>(property);
    if (RecordingItem* const flat = FlatOf(item); flat != nullptr && known != nullptr) {
        flat->Set(known->Name(), value);
    }
}

template <class Interface>
void RecordingSourceBase<Interface>::SetSortProperty(zbIBrowserDataProperty* property) {
    auto* const known = dynamic_cast<RecordingProperty*>(property);
    calls_.Called("SetSortProperty", name_, {known == nullptr ? "null" : known->Name()});
    sortProperty_ = known;
}

template <class Interface>
bool RecordingSourceBase<Interface>::CompareBySortProperty(zbIBrowserDataItem* a,
                                                           zbIBrowserDataItem* b, int& cmp) {
    return sortProperty_ != nullptr &&
           Compare("CompareBySortProperty", sortProperty_->Name(), a, b, cmp);
}

template <class Interface>
bool RecordingSourceBase<Interface>::CompareByDataProperty(zbIBrowserDataItem* a,
                                                           zbIBrowserDataProperty* propertyOfA,
                                                           zbIBrowserDataItem* b,
                                                           zbIBrowserDataProperty* propertyOfB,
                                                           int& cmp) {
    auto const* const ofA = dynamic_cast<RecordingProperty*>(propertyOfA);
    auto const* const ofB = dynamic_cast<RecordingProperty*>(propertyOfB);
    calls_.Called("CompareByDataProperty", name_, {calls_.NameOf(a), calls_.NameOf(b)});
    RecordingItem const* const left = FlatOf(a);
    RecordingItem const* const right = FlatOf(b);
    if (!compares || ofA == nullptr || ofB == nullptr || left == nullptr || right == nullptr) {
        return false;
    }
    cmp = CompareValues(left->Value(ofA->Name()), right->Value(ofB->Name()));
    return true;
}

template <class Interface>
bool RecordingSourceBase<Interface>::CompareByName(zbIBrowserDataItem* a, zbIBrowserDataItem* b,
                                                   int& cmp) {
    return Compare("CompareByName", "name", a, b, cmp);
}

template <class Interface>
bool RecordingSourceBase<Interface>::CompareById(zbIBrowserDataItem* a, zbIBrowserDataItem* b,
                                                 int& cmp) {
    return Compare("CompareById", "id", a, b, cmp);
}

template class RecordingSourceBase<zbIBrowserDataSourceSimple>;
template class RecordingSourceBase<zbIBrowserDataSourceHierarchical>;

} // namespace zbtest

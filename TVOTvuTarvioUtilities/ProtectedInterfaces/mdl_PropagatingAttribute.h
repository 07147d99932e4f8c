#pragma once

#include "atr_String.h"
#include "cls_Containers.h"
#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "mdl_PropagationEnums.h"
#include "nex_Exception.h"
#include "omu_PrimEnum.h"
#include "rgnC_Region.h"

/// Stored form of mdl_PropAttr<T>: the registered name, the identifier, the version and the ordinals of value and state.
/// The older classes keep 4 and 2, the later ones 0 and 1; both are part of the stored format.
template <class T>
struct mdl_PropAttrForm;

/// `MDL_PROP_ATTR(kbcC, kbcC_BucklingCaseEnm, "kbcC_PropBucklingCase", 203, 4, 2);`
#define MDL_PROP_ATTR(Module, T, registeredName, classVersion, valueOrdinalNumber, stateOrdinalNumber) \
  template <>                                                                                          \
  struct mdl_PropAttrForm<T> {                                                                         \
    static constexpr char const* name = registeredName;                                                \
    static constexpr unsigned int typeId = Module##_TypeId(registeredName);                            \
    static constexpr int version = classVersion;                                                       \
    static constexpr int valueOrdinal = valueOrdinalNumber;                                            \
    static constexpr int stateOrdinal = stateOrdinalNumber;                                            \
  }

/// What all propagating attributes have in common, for callers that do not know the type of the value.
class TVO_API mdl_PropAttrBase : public cls_Persistent {
 public:
  mdl_PropAttributeStateEnm State() const noexcept { return state_; }
  /// Stores the state; the value is not touched, not even for UNSET or FREED.
  void ForceState(mdl_PropAttributeStateEnm state) noexcept { state_ = state; }
  /// SET becomes PROPAGATED, FREED becomes UNSET; the value is not touched.
  void Propagate() noexcept { state_ = Propagated(state_); }
  static mdl_PropAttributeStateEnm Propagated(mdl_PropAttributeStateEnm state) noexcept {
    return state == SET ? PROPAGATED : state == FREED ? UNSET : state;
  }
  /// The user did something to it in this step.
  bool IsModified() const noexcept { return state_ == SET || state_ == FREED; }
  bool IsConditionModified() const noexcept { return state_ == FREED; }
  /// There is a value in force.
  bool IsActive() const noexcept { return state_ == SET || state_ == PROPAGATED; }
  bool IsFree() const noexcept { return state_ == UNSET || state_ == FREED; }

  /// Whether the value carries identities besides the attribute's own, as lists do. NewUid() renews all of them,
  /// SetOwnUid() the attribute's own alone.
  virtual bool ValueHasIdentity() const = 0;
  void SetOwnUid(cls_Uid uid) noexcept { uid_ = uid; }
  /// Clears the value to zero or empty; the state is not touched.
  virtual void Zero() = 0;
  /// Sets the state alone, as scripts do: UNSET only in the create step, FREED only after it; SET gives a value of zero.
  /// Any other wish is refused in words that name the attribute, and nothing changes.
  void SetStatus(char const* name, omu_PrimEnum<mdl_PropAttributeStateEnm, 1> const& status, bool createStep) {
    bool const allowed = status == SET || status == PROPAGATED || status == (createStep ? UNSET : FREED);
    if (!allowed || status.AsString().IsEmpty()) {
      atr_translate message("Invalid propagation status for '%s' attribute.", 0);
      atr_SubstituteFormat(message, 1, name, 0);
      nex_PrimException<atr_String, 1>(message.Result(0)).Throw(__FILE__, __LINE__);
    }
    if (status != PROPAGATED) {
      Zero();
      state_ = status;
    }
  }

  /// Lays another step's edit over this value: what the edit did not touch stays. `other` is of the same class.
  virtual void Modify(mdl_PropAttrBase const& other) = 0;
  /// Whether this is what Propagate() would make of `before`, an attribute of the same class.
  virtual bool IsPropagationOf(mdl_PropAttrBase const& before) const = 0;

  /// The value as a person types it; SetValueText gives the value and the state SET, false if the text cannot be read.
  virtual std::string ValueText() const = 0;
  virtual bool SetValueText(std::string_view text) = 0;
  virtual char const* Expected() const = 0;


 protected:
  mdl_PropAttributeStateEnm state_ = UNSET;
};

/// A value of a step-dependent object together with how it came to be in the step: typed here, inherited, released here,
/// or never given. Equality with another attribute is by value and state; with a T by value; with a state by state.
template <class T>
class TVO_API mdl_PropAttr final : public mdl_PropAttrBase {
 public:
  static constexpr unsigned int TypeId() noexcept { return mdl_PropAttrForm<T>::typeId; }
  static cls_AttributeTable const& Attributes();
  static void InitializeMetadata(cls_ClassRegistrar& registrar) { cls_Register<mdl_PropAttr>(registrar); }
  CLS_CONCRETE_OPERATIONS(mdl_PropAttr)

 public:
  mdl_PropAttr() = default;
  /// Takes the value; the state stays UNSET: constructing is not setting.
  explicit mdl_PropAttr(T value) : value_(std::move(value)) {}
  mdl_PropAttr(mdl_PropAttr const&) = default;
  mdl_PropAttr& operator=(mdl_PropAttr const&) = default;

  mdl_PropAttr& operator=(T const& value) {
    value_ = value;
    state_ = SET;
    return *this;
  }
  /// UNSET and FREED clear the value; SET and PROPAGATED leave it.
  mdl_PropAttr& operator=(mdl_PropAttributeStateEnm const& state) {
    if (state == UNSET || state == FREED) {
      Zero();
    }
    state_ = state;
    return *this;
  }

  bool operator==(mdl_PropAttr const& other) const {
    return state_ == other.state_ && cls_IsSame(value_, other.value_);
  }
  bool operator==(T const& value) const { return value_ == value; }
  bool operator==(mdl_PropAttributeStateEnm const& state) const { return state_ == state; }

  /// For writing: sets the state to SET, whether or not the caller then writes.
  T& Get() {
    state_ = SET;
    return value_;
  }
  T const& ConstGet() const noexcept { return value_; }
  void Zero() override { value_ = T(); }
  bool ValueHasIdentity() const override { return valueHasIdentity; }
  void NewUid() override {
    uid_.NewUid();
    if constexpr (valueHasIdentity) {
      cls_Codec<T>::NewUid(value_);
    }
  }

  void Modify(mdl_PropAttr const& other) {
    if (other.IsModified()) {
      state_ = other.state_;
      value_ = other.value_;
    }
  }
  void Modify(mdl_PropAttrBase const& other) override { Modify(static_cast<mdl_PropAttr const&>(other)); }
  bool IsPropagationOf(mdl_PropAttrBase const& before) const override {
    return state_ == Propagated(before.State()) && cls_IsSame(value_, static_cast<mdl_PropAttr const&>(before).value_);
  }

  std::string ValueText() const override;
  bool SetValueText(std::string_view text) override;
  char const* Expected() const override;

 private:
  // A complex value is stored by its parts and so has no codec.
  static constexpr bool valueHasIdentity = [] {
    if constexpr (std::is_same_v<T, omi_complex>) {
      return false;
    } else {
      return cls_Codec<T>::hasIdentity;
    }
  }();

  T value_{};
};

/// A complex value is stored and typed by its parts; all other values as their type says.
template <class T>
cls_AttributeTable const& mdl_PropAttr<T>::Attributes() {
  using Form = mdl_PropAttrForm<T>;
  using Self = mdl_PropAttr<T>;
  static auto const table = [] {
    if constexpr (std::is_same_v<T, omi_complex>) {
      return cls_Describe<Self>(Form::name, Form::version)
          .Complex(Form::valueOrdinal, "valReal", "valImag", &Self::value_)
          .Attribute(Form::stateOrdinal, "state", &Self::state_);
    } else {
      return cls_Describe<Self>(Form::name, Form::version)
          .Attribute(Form::valueOrdinal, "val", &Self::value_)
          .Attribute(Form::stateOrdinal, "state", &Self::state_);
    }
  }();
  return table;
}

template <class T>
std::string mdl_PropAttr<T>::ValueText() const {
  if constexpr (std::is_same_v<T, omi_complex>) {
    return cls_NumberText(value_.ConvertedReal()) + "," + cls_NumberText(value_.ConvertedImag());
  } else {
    return cls_Codec<T>::Text(value_);
  }
}

template <class T>
bool mdl_PropAttr<T>::SetValueText(std::string_view text) {
  if constexpr (std::is_same_v<T, omi_complex>) {
    std::size_t const comma = text.find(',');
    double real = 0.0;
    double imaginary = 0.0;
    bool const read = cls_ReadNumber(text.substr(0, comma), real) &&
                      (comma == std::string_view::npos || cls_ReadNumber(text.substr(comma + 1), imaginary));
    if (read) {
      Get() = omi_complex(real, imaginary);
    }
    return read;
  } else {
    T value{};
    if (!cls_Codec<T>::SetText(text, value)) {
      return false;
    }
    Get() = value;
    return true;
  }
}

template <class T>
char const* mdl_PropAttr<T>::Expected() const {
  if constexpr (std::is_same_v<T, omi_complex>) {
    return "a number, or real and imaginary part with a comma between them";
  } else {
    return cls_Codec<T>::expected;
  }
}

MDL_PROP_ATTR(mdl, double, "mdl_PropAttr<double>", 203, 0, 1);
MDL_PROP_ATTR(mdl, int, "mdl_PropAttr<int>", 203, 0, 1);
MDL_PROP_ATTR(mdl, bool, "mdl_PropAttr<bool>", 203, 0, 1);
MDL_PROP_ATTR(mdl, cow_String, "mdl_PropAttr<cow_String>", 203, 0, 1);
MDL_PROP_ATTR(mdl, cls_xpListInt, "mdl_PropAttr<cls_xpListInt>", 203, 0, 1);
MDL_PROP_ATTR(mdl, cls_xpListString, "mdl_PropAttr<cls_xpListString>", 203, 0, 1);
MDL_PROP_ATTR(mdl, cls_xp1DArrayInt, "mdl_PropAttr<cls_xp1DArrayInt>", 203, 0, 1);
MDL_PROP_ATTR(mdl, cls_xp1DArrayListFloat, "mdl_PropAttr<cls_xp1DArrayListFloat>", 203, 0, 1);
MDL_PROP_ATTR(mdl, cls_xp1DArrayListDouble, "mdl_PropAttr<cls_xp1DArrayListDouble>", 203, 0, 1);
MDL_PROP_ATTR(mdl, cls_xoList<rgnC_Region>, "mdl_PropAttr<cls_xoList<rgnC_Region>>", 203, 0, 1);

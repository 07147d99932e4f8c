#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

// What the dampings share: what a component is for, and the list of the components.

/// A range of modes.
class TVO_API kprC_DampedModes {
 public:
  int start = 0;  ///< first mode, from 1
  int end = 0;    ///< last mode, not below start

 protected:
  ~kprC_DampedModes() = default;
  /// Refuses a range that does not run upwards from 1: numbers 18, 19 and 20.
  void AssertModes() const;
};

/// A frequency between whose neighbours the damping is interpolated.
class TVO_API kprC_DampedFrequency {
 public:
  double frequency = 0.0;  ///< in cycles per unit of time, from 0

 protected:
  ~kprC_DampedFrequency() = default;
  /// Refuses a negative one: number 164.
  void AssertFrequency() const;
};

/// A damping given by components.
template <class Component>
class TVO_API kprC_Damping : public cls_Persistent {
 public:
  /// Refuses what a component refuses.
  void AssertValid() const {
    for (Component const& component : components) component.AssertValid();
  }

  cls_xoList<Component> components;
};

#pragma once

#include "fuzz/PlayedBus.h"

#include <QByteArray>
#include <QVariantMap>

#include <fuzzer/FuzzedDataProvider.h>

/// Far above what anybody sends, and below what a bus lets through (64).
constexpr int deepest = 48;
constexpr int deepestType = 3;

/// Any type, as a bus's signature.
QByteArray typeFrom(FuzzedDataProvider &input, int depth);
/// Any value of the type, floating.
GVariant *valueFrom(FuzzedDataProvider &input, const GVariantType *type, int depth);

BusValue childOf(GVariant *value, gsize index);

/// What a value from the bus has to arrive as.
QVariant plainOf(GVariant *value);
QVariantList plainChildrenOf(GVariant *value);
/// What a plain value has to be sent as: what has no plain type is left out.
QVariant sentAs(const QVariant &plain);
/// Equal to the type, at every depth.
bool areSame(const QVariant &first, const QVariant &second);

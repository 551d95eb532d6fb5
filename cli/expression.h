// The assertions of `expect LHS OP RHS`.
#pragma once

#include <string>

#include "cli/script.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"
#include "toolkit/value.h"

namespace vrask::cli {

// What the left side names, read off the running program: form, ended,
// clock, messages, message, messagetitle, focus, Form.Caption,
// Form.BackColor, shared.NAME, var.NAME(i,...), ELEMENT.PROPERTY.
Value evaluate(Program& program, const HeadlessHost& host, const std::string& lhs);

// The right side: a number, true/false, or a quoted string.
Value parseLiteral(const Token& token);

// Whether `actual OP expected` holds. Numbers compare as numbers, also
// against a text that reads wholly as a number (a score in a caption).
bool compare(const Value& actual, const std::string& op, const Value& expected);

// Throws on an operator that is not one of ==, !=, <, <=, >, >=, contains,
// or one that cannot take `expected`.
void checkOperator(const std::string& op, const Value& expected);

}  // namespace vrask::cli

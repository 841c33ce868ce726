#pragma once

#include <QMap>
#include <QString>

namespace corvane::test {

/** Definitions that use every feature of the language; the root is test.Every. */
inline QMap<QString, QString> everyFeature()
{
    return {{QStringLiteral("every.proto"), QStringLiteral(R"(
syntax = "proto2";
package test;
import "parts/modern.proto";
import "google/protobuf/any.proto";
import "google/protobuf/timestamp.proto";
enum Color { RED = 1; GREEN = 2; DARK = -1; }
message Every {
  required int32 id = 1;
  optional int32 int32_field = 2;
  optional int64 int64_field = 3;
  optional uint32 uint32_field = 4;
  optional uint64 uint64_field = 5;
  optional sint32 sint32_field = 6;
  optional sint64 sint64_field = 7;
  optional fixed32 fixed32_field = 8;
  optional fixed64 fixed64_field = 9;
  optional sfixed32 sfixed32_field = 10;
  optional sfixed64 sfixed64_field = 11;
  optional float float_field = 12;
  optional double double_field = 13 [default = 2.5];
  optional bool bool_field = 14;
  optional string string_field = 15;
  optional bytes bytes_field = 16;
  optional Color color = 17;
  repeated int32 unpacked = 18;
  repeated sint64 packed = 19 [packed = true];
  repeated double doubles = 20;
  repeated string strings = 21;
  repeated bytes chunks = 22;
  repeated Color colors = 23;
  repeated bool bools = 24 [packed = true];
  optional Part part = 25;
  repeated Part parts = 26;
  oneof choice {
    int32 number = 27;
    string text = 28;
    Part piece = 29;
  }
  map<string, int32> counts = 30;
  map<int32, Part> parts_by_number = 31;
  optional group Pair = 32 {
    optional int32 left = 33;
    optional int32 right = 34;
  }
  repeated group Item = 35 {
    optional string name = 36;
  }
  optional Every inner = 37;
  optional modern.Modern modern = 38;
  optional google.protobuf.Any any = 39;
  optional google.protobuf.Timestamp time = 40;
  extensions 100 to 200;
  message Part {
    optional int32 value = 1;
    optional string label = 2;
  }
}
extend Every {
  optional int32 extra = 100;
  repeated Every.Part more = 101;
}
)")},
            {QStringLiteral("parts/modern.proto"), QStringLiteral(R"(
syntax = "proto3";
package modern;
enum State { UNKNOWN = 0; ON = 1; OFF = 2; }
message Modern {
  int32 plain = 1;
  optional int32 maybe = 2;
  State state = 3;
  repeated State states = 4;
  string text = 5;
  bytes data = 6;
  repeated uint32 numbers = 7;
  float ratio = 8;
  map<string, State> by_name = 9;
  oneof either { int32 a = 10; string b = 11; }
  bool flag = 12;
}
)")}};
}

/** A message with a value in every kind of field of test.Every, in the text format. */
inline QString everyFeatureMessage()
{
    return QStringLiteral(
        "id: 1 int64_field: -5 float_field: 1.5 double_field: 2.5 string_field: 'äb' "
        "bytes_field: 'xyz' color: GREEN packed: [1, -2, 300] doubles: 1.25 strings: 'p' "
        "strings: 'q' colors: [RED, DARK] bools: [true, false] parts { value: 3 label: 'l' } "
        "parts {} text: 'case' counts { key: 'k' value: 1 } counts { key: 'j' value: 2 } "
        "parts_by_number { key: 1 value { value: 9 } } Pair { left: 1 } Item { name: 'n' } "
        "inner { id: 2 modern { plain: 1 text: 'ö' states: [ON, OFF] "
        "by_name { key: 'm' value: ON } } } "
        "any { type_url: 't/test.Every' value: '\\010\\001' } time { seconds: 3 } "
        "[test.extra]: 4 [test.more] { value: 5 }");
}

} // namespace corvane::test

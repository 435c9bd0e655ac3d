// CMPIErrorFT: one getter and one setter for each kind of member.
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

template <auto kMember>
CMPIString* get_text(const CMPIError* error, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIString*>(nullptr), [&] {
    const Shell<CMPIError>& shell = shell_of(error);
    return make_string(shell.broker, (*shell.content).*kMember);
  });
}

template <class Value, Value ErrorContent::*kMember>
Value get_value(const CMPIError* error, CMPIStatus* rc) {
  return guarded(rc, Value{}, [&] { return content_of(error).*kMember; });
}

template <auto kMember>
CMPIArray* get_texts(const CMPIError* error, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIArray*>(nullptr), [&] {
    const Shell<CMPIError>& shell = shell_of(error);
    return make<CMPIArray>(shell.broker, ArrayContent{CMPI_string, (*shell.content).*kMember});
  });
}

template <auto kMember>
CMPIStatus set_text(const CMPIError* error, const char* text) {
  return guarded_status([&] { content_of(error).*kMember = text_argument(text, "the text"); });
}

template <class Value, Value ErrorContent::*kMember>
CMPIStatus set_value(const CMPIError* error, Value value) {
  return guarded_status([&] { content_of(error).*kMember = value; });
}

template <auto kMember>
CMPIStatus set_texts(const CMPIError* error, const CMPIArray* texts) {
  return guarded_status([&] {
    const ArrayContent& content = content_of(texts);
    if (content.type != CMPI_string && content.type != CMPI_chars) {
      throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE,
                     "an array of strings is needed, not of " + type_text(content.type));
    }
    content_of(error).*kMember = content.elements;
  });
}

}  // namespace

CMPIErrorFT error_table() {
  using Content = ErrorContent;
  return {
      .ftVersion = kTableVersion,
      .release = release_object<CMPIError>,
      .clone = clone_object<CMPIError>,
      .getErrorType = get_value<CMPIErrorType, &Content::type>,
      .getOtherErrorType = get_text<&Content::other_type>,
      .getOwningEntity = get_text<&Content::owning_entity>,
      .getMessageID = get_text<&Content::message_id>,
      .getMessage = get_text<&Content::message>,
      .getPerceivedSeverity = get_value<CMPIErrorSeverity, &Content::severity>,
      .getProbableCause = get_value<CMPIErrorProbableCause, &Content::cause>,
      .getProbableCauseDescription = get_text<&Content::cause_description>,
      .getRecommendedActions = get_texts<&Content::recommended_actions>,
      .getErrorSource = get_text<&Content::source>,
      .getErrorSourceFormat = get_value<CMPIErrorSrcFormat, &Content::source_format>,
      .getOtherErrorSourceFormat = get_text<&Content::other_source_format>,
      .getCIMStatusCode = get_value<CMPIrc, &Content::status>,
      .getCIMStatusCodeDescription = get_text<&Content::status_description>,
      .getMessageArguments = get_texts<&Content::message_arguments>,
      .setErrorType = set_value<CMPIErrorType, &Content::type>,
      .setOtherErrorType = set_text<&Content::other_type>,
      .setProbableCauseDescription = set_text<&Content::cause_description>,
      .setRecommendedActions = set_texts<&Content::recommended_actions>,
      .setErrorSource = set_text<&Content::source>,
      .setErrorSourceFormat = set_value<CMPIErrorSrcFormat, &Content::source_format>,
      .setOtherErrorSourceFormat = set_text<&Content::other_source_format>,
      .setCIMStatusCodeDescription = set_text<&Content::status_description>,
      .setMessageArguments = set_texts<&Content::message_arguments>,
  };
}

}  // namespace cim::host

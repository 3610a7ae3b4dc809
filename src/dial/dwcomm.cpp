#include "dial/dwcomm.h"

#include <algorithm>

#include "platform/text/sjis.h"

namespace zelko {

namespace {

struct LineError {
  unsigned bit;
  TextView text;
};

constexpr LineError kLineErrors[] = {
    {1, u"Receive Queue Full Error"}, {2, u"Receive Overrun Error"}, {4, u"Receive Parity Error"}, {8, u"Frame Error"},
    {16, u"Break Detected"},          {256, u"Transmit Queue Full"},
};

[[noreturn]] void raise(TextView message) { throw SerialError{u"dwComm", Text(message)}; }

// "COM2" is 2; 0 for a name that is none.
int numberOf(TextView name) {
  const bool isPort = name.size() == 4 && name.substr(0, 3) == u"COM" && name[3] >= u'1' && name[3] <= u'3';
  return isPort ? name[3] - u'0' : 0;
}

}  // namespace

void dwComm::OpenComm(TextView name, CommEvent owner, TextView device) {
  CloseComm();
  const int number = numberOf(name);
  if (number != 0) port_ = host().openSerial(number, device);
  if (!port_) raise(u"Unable to open communications device");
  name_ = name;
  owner_ = std::move(owner);
}

void dwComm::CloseComm() {
  port_.reset();
  name_.clear();
  pending_.clear();
}

void dwComm::SetCommState(const dwDCB& state) {
  if (!port_) raise(u"Communication Device is not open");
  const SerialPort::Line line{state.BaudRate, state.ByteSize, state.Parity, state.StopBits};
  if (!port_->configure(line)) raise(u"SetCommState Failed");
  state_ = state;
}

bool dwComm::lineIsOn(unsigned line) const {
  if (!port_) raise(u"Communication Device is not open");
  const auto lines = port_->modemLines();
  if (!lines) raise(u"GetCommModemStatus Failed");
  return (*lines & line) != 0;
}

void dwComm::CommOutput(TextView text) {
  pending_ += toSjis(text);
  PollWrite();
}

void dwComm::PollWrite() {
  while (!pending_.empty()) {
    if (!port_) raise(u"Communication Device is not open");
    const std::size_t size = std::min(pending_.size(), kWriteSize);
    if (!port_->write(std::string_view(pending_).substr(0, size))) {
      pending_.clear();
      raise(u"Failure on Comm device write operation");
    }
    ProcessWriteComplete(size);
  }
}

void dwComm::ProcessWriteComplete(std::size_t sent) { pending_.erase(0, sent); }

std::string dwComm::PollRead() {
  if (!port_) raise(u"Failure on Comm device read operation");
  return port_->read();
}

void dwComm::Poll() {
  if (!port_) raise(u"Failure on Comm device event test operation");
  const unsigned errors = port_->lineErrors();
  for (const LineError& error : kLineErrors) {
    if ((errors & error.bit) && owner_) owner_(error.text);
  }
  PollWrite();
}

}  // namespace zelko

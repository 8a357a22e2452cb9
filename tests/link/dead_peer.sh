#!/bin/sh
# Runs the test of a peer that is gone in a network of its own, where the cable can be pulled.
# usage: dead_peer.sh TEST_PROGRAM; 77: this system gives no such network
unshare -rn true 2>/dev/null && command -v ip >/dev/null || { echo "skipped: no network of its own"; exit 77; }
exec env KV_OWN_NETWORK=1 unshare -rn "$1" deadPeer

#!/usr/bin/env bash
# A short evening in the card room: the server, six bots, and the guest of the guide. Takes the folder of the programs.
set -euo pipefail
programs=$1
folder=$(mktemp -d)
server=''
# What the programs have said is worth reading only when something has failed.
clean_up() {
  local status=$?
  [ $status = 0 ] || cat "$folder/err" >&2 || true
  [ -z "$server" ] || kill "$server" 2>/dev/null || true
  rm -rf "$folder"
}
trap clean_up EXIT

: >"$folder/out"  # so that it is there to be read, however late the server starts
timeout 60 "$programs/card_room_server" --port 0 --seconds 10 --pause 20 --ledger "$folder/server" \
  >"$folder/out" 2>"$folder/err" &
server=$!
for _ in $(seq 100); do
  port=$(awk '/^listening on port/ { print $4 }' "$folder/out")
  [ -z "$port" ] || break
  sleep 0.1
done
timeout 60 "$programs/card_room_guide_3" "$port" 2>>"$folder/err"
timeout 60 "$programs/card_room_client" --port "$port" --bots 6 --ledger "$folder/client" 2>>"$folder/err" &
client=$!
wait $client
wait $server
cat "$folder/out"
"$programs/card_room_check" "$folder/server" "$folder/client"

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ActionButton</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>ChartFilterRow</name>
    <message>
        <source>Low-pass filter</source>
        <translation>ローパスフィルター</translation>
    </message>
    <message>
        <source>Cutoff frequency</source>
        <translation>カットオフ周波数</translation>
    </message>
</context>
<context>
    <name>ChartLegendEntry</name>
    <message>
        <source>Hide %1</source>
        <translation>%1 を非表示</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 を表示</translation>
    </message>
</context>
<context>
    <name>ChartReadout</name>
    <message>
        <source>t %1</source>
        <translation>t %1</translation>
    </message>
</context>
<context>
    <name>ChartSaver</name>
    <message>
        <source>Save the visible samples</source>
        <translation>表示中のサンプルを保存</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>CSV ファイル (*.csv)</translation>
    </message>
    <message>
        <source>The picture could not be taken.</source>
        <translation>画像を作成できませんでした。</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>グラフの画像を保存</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG 画像 (*.png)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 を保存しました</translation>
    </message>
</context>
<context>
    <name>CommandSession</name>
    <message>
        <source>The device does not answer. Check the baud rate, then identify it again.</source>
        <translation>デバイスが応答しません。ボーレートを確認して、もう一度識別してください。</translation>
    </message>
    <message>
        <source>The device refused %1.</source>
        <translation>デバイスが %1 を受け付けませんでした。</translation>
    </message>
    <message>
        <source>The settings were sent and the device has restarted.</source>
        <translation>設定を送信し、デバイスが再起動しました。</translation>
    </message>
    <message>
        <source>(no reply)</source>
        <translation>（応答なし）</translation>
    </message>
</context>
<context>
    <name>DashboardWindow</name>
    <message>
        <source>This window could not be loaded. The log of the program tells why.</source>
        <translation>このウィンドウを読み込めませんでした。原因はプログラムのログを確認してください。</translation>
    </message>
</context>
<context>
    <name>FftAlarm</name>
    <message>
        <source>Resultant</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>%1 Hz on %2 (amp %3)</source>
        <translation>%1 Hz (%2、振幅 %3)</translation>
    </message>
    <message>
        <source>Band %1 | Watch &gt;= %2 | Alarm &gt;= %3 | %4 frame(s)</source>
        <translation>帯域 %1 | 注意 &gt;= %2 | 警報 &gt;= %3 | %4 フレーム</translation>
    </message>
    <message>
        <source>%1-%2 Hz</source>
        <translation>%1～%2 Hz</translation>
    </message>
    <message>
        <source>%1 Hz and above</source>
        <translation>%1 Hz 以上</translation>
    </message>
    <message>
        <source>All frequencies</source>
        <translation>全周波数</translation>
    </message>
    <message>
        <source>General</source>
        <translation>汎用</translation>
    </message>
    <message>
        <source>Industrial</source>
        <translation>産業機械</translation>
    </message>
    <message>
        <source>Human</source>
        <translation>人体動作</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>警報</translation>
    </message>
    <message>
        <source>Use cursor A/B to inspect the dominant peak.</source>
        <translation>カーソル A/B で卓越ピークを確認してください。</translation>
    </message>
    <message>
        <source>Use cursor A/B to compare the dominant peak with nearby harmonics and band changes.</source>
        <translation>カーソル A/B で、卓越ピークと近くの高調波や帯域の変化を比較してください。</translation>
    </message>
    <message>
        <source>Low-frequency drift zone</source>
        <translation>低周波ドリフト領域</translation>
    </message>
    <message>
        <source>Primary motion zone</source>
        <translation>主運動領域</translation>
    </message>
    <message>
        <source>Vibration zone</source>
        <translation>振動領域</translation>
    </message>
    <message>
        <source>High-frequency impact zone</source>
        <translation>高周波衝撃領域</translation>
    </message>
    <message>
        <source>Structural / looseness zone</source>
        <translation>構造・緩み領域</translation>
    </message>
    <message>
        <source>Check mounting bolts, frame looseness, and base stiffness.</source>
        <translation>取り付けボルト、フレームの緩み、基礎の剛性を確認してください。</translation>
    </message>
    <message>
        <source>Rotating equipment zone</source>
        <translation>回転機器領域</translation>
    </message>
    <message>
        <source>Compare with shaft speed and inspect imbalance, misalignment, or coupling issues.</source>
        <translation>軸の回転速度と比較し、アンバランス、芯ずれ、カップリングの異常を点検してください。</translation>
    </message>
    <message>
        <source>Bearing / gear zone</source>
        <translation>軸受・歯車領域</translation>
    </message>
    <message>
        <source>Inspect bearings, gears, and resonance paths around the measured axis.</source>
        <translation>測定軸周辺の軸受、歯車、共振経路を点検してください。</translation>
    </message>
    <message>
        <source>Impact / resonance zone</source>
        <translation>衝撃・共振領域</translation>
    </message>
    <message>
        <source>Check for repeated impacts, chatter, looseness, or hard contact.</source>
        <translation>繰り返しの衝撃、びびり、緩み、強い接触がないか確認してください。</translation>
    </message>
    <message>
        <source>Posture / sway zone</source>
        <translation>姿勢・動揺領域</translation>
    </message>
    <message>
        <source>Review posture, balance, and slow body sway over a longer window.</source>
        <translation>より長い時間範囲で、姿勢、バランス、ゆっくりした身体の揺れを確認してください。</translation>
    </message>
    <message>
        <source>Gait / repetition zone</source>
        <translation>歩行・反復動作領域</translation>
    </message>
    <message>
        <source>Compare cadence, stride rhythm, and left/right symmetry.</source>
        <translation>ケイデンス、歩行リズム、左右の対称性を比較してください。</translation>
    </message>
    <message>
        <source>Tremor / shake zone</source>
        <translation>振戦・震え領域</translation>
    </message>
    <message>
        <source>Observe sustained tremor-like motion and compare different postures or limbs.</source>
        <translation>持続する震えのような動きを観察し、異なる姿勢や手足で比較してください。</translation>
    </message>
    <message>
        <source>Impact / abrupt motion zone</source>
        <translation>衝撃・急動作領域</translation>
    </message>
    <message>
        <source>Mark abrupt movement, foot strike, or collision-like events and review the raw waveform.</source>
        <translation>急な動き、足の接地、衝突のような現象に印を付け、生波形を確認してください。</translation>
    </message>
    <message>
        <source>General zone</source>
        <translation>一般領域</translation>
    </message>
    <message>
        <source>No dominant FFT peak is available yet, so the alarm cannot classify the current motion or vibration.</source>
        <translation>FFT の卓越ピークがまだないため、現在の動きや振動を分類できません。</translation>
    </message>
    <message>
        <source>Start or resume FFT updates and wait for a stable peak before acting on the alarm.</source>
        <translation>FFT の更新を開始または再開し、ピークが安定してから警報に対応してください。</translation>
    </message>
    <message>
        <source>%1 monitoring: waiting for data</source>
        <translation>%1 監視: データ待ち</translation>
    </message>
    <message>
        <source>%1 monitoring: no dominant peak yet.</source>
        <translation>%1 監視: 卓越ピークはまだありません。</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is below the watch level.</source>
        <translation>%1 監視: %2 のピークは注意レベル未満です。</translation>
    </message>
    <message>
        <source>%1 watch: %2 is approaching the alarm threshold.</source>
        <translation>%1 注意: %2 のピークが警報しきい値に近づいています。</translation>
    </message>
    <message>
        <source>%1 alarm: %2 persisted above threshold.</source>
        <translation>%1 警報: %2 のピークがしきい値を超え続けています。</translation>
    </message>
    <message>
        <source>%1 monitoring: dominant peak outside target band</source>
        <translation>%1 監視: 卓越ピークが対象帯域外</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is outside the target band.</source>
        <translation>%1 監視: %2 のピークは対象帯域外です。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is outside the monitored band %2, so this preset stays idle.</source>
        <translation>%1 の卓越ピークは監視帯域 %2 の外にあるため、このプリセットは待機状態のままです。</translation>
    </message>
    <message>
        <source>If this frequency matters for your use case, switch presets or set a custom alarm rule.</source>
        <translation>この周波数が用途上重要な場合は、プリセットを切り替えるか、カスタム警報ルールを設定してください。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and remains below the watch threshold.</source>
        <translation>%1 の卓越ピークは「%2」にあり、注意しきい値を下回っています。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and is approaching the alarm threshold.</source>
        <translation>%1 の卓越ピークは「%2」にあり、警報しきい値に近づいています。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and stayed above the alarm threshold long enough to be treated as a persistent event.</source>
        <translation>%1 の卓越ピークは「%2」にあり、警報しきい値を一定時間超え続けたため、持続的な事象と判定されました。</translation>
    </message>
</context>
<context>
    <name>FftBand</name>
    <message>
        <source>Low</source>
        <translation>低域</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>中域</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高域</translation>
    </message>
</context>
<context>
    <name>FftChartBridge</name>
    <message>
        <source>The band needs a name.</source>
        <translation>帯域の名前を入力してください。</translation>
    </message>
    <message>
        <source>The upper edge must be above the lower one.</source>
        <translation>帯域の上限は下限より大きい値にしてください。</translation>
    </message>
    <message>
        <source>There are %1 bands already.</source>
        <translation>帯域はすでに %1 個あります。</translation>
    </message>
    <message>
        <source>Custom rule</source>
        <translation>カスタムルール</translation>
    </message>
    <message>
        <source>The upper frequency must be above the lower one, or 0 for no limit.</source>
        <translation>上限周波数は下限周波数より大きい値、または 0（上限なし）にしてください。</translation>
    </message>
    <message>
        <source>The alarm threshold must not be below the watch threshold, and both must be above 0.</source>
        <translation>警報しきい値は注意しきい値以上とし、どちらも 0 より大きい値にしてください。</translation>
    </message>
    <message>
        <source>The frequencies are out of range.</source>
        <translation>周波数が範囲外です。</translation>
    </message>
    <message>
        <source>Raised at %1 Hz, amplitude %2</source>
        <translation>%1 Hz で発生、振幅 %2</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>解除</translation>
    </message>
    <message>
        <source>up</source>
        <translation>上昇</translation>
    </message>
    <message>
        <source>steady</source>
        <translation>安定</translation>
    </message>
    <message>
        <source>Coherence disabled</source>
        <translation>コヒーレンス無効</translation>
    </message>
    <message>
        <source>Latency %1ms avg / %2ms max | Dropped %3 | Clipping %4 | Confidence %5</source>
        <translation>遅延 平均 %1 ms / 最大 %2 ms | 欠落 %3 | クリッピング %4 | 信頼度 %5</translation>
    </message>
</context>
<context>
    <name>FftSnapshot</name>
    <message>
        <source>The file could not be written: %1</source>
        <translation>ファイルに書き込めませんでした: %1</translation>
    </message>
    <message>
        <source>The file could not be read: %1</source>
        <translation>ファイルを読み込めませんでした: %1</translation>
    </message>
    <message>
        <source>The file is no spectrum snapshot.</source>
        <translation>スペクトルのスナップショットファイルではありません。</translation>
    </message>
</context>
<context>
    <name>FftWindow</name>
    <message>
        <source>Rectangular</source>
        <translation>矩形窓</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>ハン窓</translation>
    </message>
    <message>
        <source>Hamming</source>
        <translation>ハミング窓</translation>
    </message>
    <message>
        <source>Blackman</source>
        <translation>ブラックマン窓</translation>
    </message>
    <message>
        <source>Flat Top</source>
        <translation>フラットトップ窓</translation>
    </message>
</context>
<context>
    <name>GatewayDashboardBridge</name>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>無線ゲートウェイダッシュボード</translation>
    </message>
    <message>
        <source>Nodes %1 · late %2 · gone %3</source>
        <translation>ノード %1 · 遅延 %2 · 途絶 %3</translation>
    </message>
    <message>
        <source>Node %1</source>
        <translation>ノード %1</translation>
    </message>
</context>
<context>
    <name>GatewayNodeModel</name>
    <message>
        <source>Live</source>
        <translation>受信中</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>途絶</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
</context>
<context>
    <name>MessageRow</name>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>SensorDashboard</name>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Hold the picture; recordings go on</source>
        <translation>表示を一時停止（記録は続きます）</translation>
    </message>
    <message>
        <source>Go on with the newest samples</source>
        <translation>最新のサンプルから表示を再開</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペースキー</translation>
    </message>
    <message>
        <source>Hide this chart</source>
        <translation>このグラフを非表示</translation>
    </message>
    <message>
        <source>Show this chart</source>
        <translation>このグラフを表示</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Paused · %1 Hz</source>
        <translation>一時停止中 · %1 Hz</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>グラフが選択されていません</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>表示するものを上で選択してください。</translation>
    </message>
</context>
<context>
    <name>SensorDashboardBridge</name>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Angular Velocity</source>
        <translation>角速度</translation>
    </message>
    <message>
        <source>Magnetic Field</source>
        <translation>磁場</translation>
    </message>
    <message>
        <source>Euler Angles</source>
        <translation>オイラー角</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>クォータニオン</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>気圧</translation>
    </message>
    <message>
        <source>Sensor Dashboard</source>
        <translation>センサーダッシュボード</translation>
    </message>
</context>
<context>
    <name>SensorDataPanel</name>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Angular rate</source>
        <translation>角速度</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>磁場</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>クォータニオン</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>Device time</source>
        <translation>デバイス時間</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>気圧</translation>
    </message>
</context>
<context>
    <name>ToolADI</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>北</translation>
    </message>
    <message>
        <source>E</source>
        <comment>east</comment>
        <translation>東</translation>
    </message>
    <message>
        <source>S</source>
        <comment>south</comment>
        <translation>南</translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation>西</translation>
    </message>
    <message>
        <source>Attitude indicator</source>
        <translation>姿勢指示器</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>姿勢データなし</translation>
    </message>
</context>
<context>
    <name>WaveChart</name>
    <message>
        <source>Waiting for samples</source>
        <translation>サンプルを待っています</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>最新へ</translation>
    </message>
    <message>
        <source>Back to the newest samples</source>
        <translation>最新のサンプルに戻る</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Low-pass filter</source>
        <translation>ローパスフィルター</translation>
    </message>
    <message>
        <source>Remove the measuring cursors</source>
        <translation>測定カーソルを消去</translation>
    </message>
    <message>
        <source>Measure between two cursors</source>
        <translation>2 本のカーソル間を測定</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>A, B</source>
        <translation>A, B</translation>
    </message>
    <message>
        <source>Reset the view</source>
        <translation>表示範囲をリセット</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>グラフの画像を保存</translation>
    </message>
    <message>
        <source>Save the visible samples</source>
        <translation>表示中のサンプルを保存</translation>
    </message>
    <message>
        <source>Show all charts</source>
        <translation>すべてのグラフを表示</translation>
    </message>
    <message>
        <source>Show this chart alone</source>
        <translation>このグラフだけを表示</translation>
    </message>
</context>
<context>
    <name>WaveChartBridge</name>
    <message>
        <source>Acceleration (G)</source>
        <translation>加速度 (G)</translation>
    </message>
    <message>
        <source>Angular Velocity (°/s)</source>
        <translation>角速度 (°/s)</translation>
    </message>
    <message>
        <source>Magnetic Field (μT)</source>
        <translation>磁場 (μT)</translation>
    </message>
    <message>
        <source>Euler Angles (°)</source>
        <translation>オイラー角 (°)</translation>
    </message>
    <message>
        <source>Quaternion (Norm)</source>
        <translation>クォータニオン (正規化)</translation>
    </message>
    <message>
        <source>Pressure (Pa)</source>
        <translation>気圧 (Pa)</translation>
    </message>
    <message>
        <source>The cutoff frequency must be above 0 Hz.</source>
        <translation>カットオフ周波数には 0 Hz より大きい値を指定してください。</translation>
    </message>
    <message>
        <source>The cutoff frequency is too low for %1 samples per second.</source>
        <translation>サンプリング周波数 %1 Hz に対して、カットオフ周波数が低すぎます。</translation>
    </message>
</context>
<context>
    <name>chart_export</name>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 に書き込めませんでした: %2</translation>
    </message>
</context>
<context>
    <name>form_about</name>
    <message>
        <source>About ORVEL-IMU</source>
        <translation>ORVEL-IMU のバージョン情報</translation>
    </message>
    <message>
        <source>KVCenter shows the data of inertial measurement units on a serial line and sets the units up.</source>
        <translation>KVCenter は、シリアル接続した慣性計測装置 (IMU) のデータを表示し、装置の設定を行います。</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>ツールキット</translation>
    </message>
    <message>
        <source>Settings and logs</source>
        <translation>設定とログ</translation>
    </message>
    <message>
        <source>Folder of settings and logs</source>
        <translation>設定とログのフォルダー</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Qt %1 (licence: GNU LGPL, version 3)</source>
        <translation>Qt %1 (ライセンス: GNU LGPL バージョン 3)</translation>
    </message>
</context>
<context>
    <name>form_base</name>
    <message>
        <source>No device connected</source>
        <translation>デバイスが接続されていません</translation>
    </message>
    <message>
        <source>Open port...</source>
        <translation>ポートを開く...</translation>
    </message>
    <message>
        <source>No hardware at hand? The simulator kv_simulator behaves like a device and prints the path of the port to open.</source>
        <translation>実機がない場合は、シミュレーター kv_simulator を使用できます。デバイスと同じように動作し、開くべきポートのパスを表示します。</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>ビルド</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>&amp;Mounting</source>
        <translation>取付(&amp;M)</translation>
    </message>
    <message>
        <source>How the device is mounted; remembered for each product</source>
        <translation>デバイスの取り付け方向（製品ごとに記憶されます）</translation>
    </message>
    <message>
        <source>RFU / ENU (3-1-2)</source>
        <translation>RFU / ENU (3-1-2)</translation>
    </message>
    <message>
        <source>FLU / NWU (Z-Y-X)</source>
        <translation>FLU / NWU (Z-Y-X)</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>The node whose values are shown</source>
        <translation>値を表示するノード</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>姿勢</translation>
    </message>
    <message>
        <source>&amp;Serial</source>
        <translation>シリアル(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>文字サイズ(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>&amp;Open port...</source>
        <translation>ポートを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>ポートを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Spectrum</source>
        <translation>スペクトル(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;3D view</source>
        <translation>3D ビュー(&amp;3)</translation>
    </message>
    <message>
        <source>&amp;Copy values</source>
        <translation>値をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Copy all values of the selected node to the clipboard</source>
        <translation>選択したノードのすべての値をクリップボードにコピーします</translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation>小(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>中(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Big</source>
        <translation>大(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation>記録(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Device settings...</source>
        <translation>デバイス設定(&amp;D)...</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Identify and configure the device (Ctrl+E)</source>
        <translation>デバイスを識別して設定します (Ctrl+E)</translation>
    </message>
    <message>
        <source>&amp;Firmware update...</source>
        <translation>ファームウェア更新(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>Unconnected...</source>
        <translation>未接続...</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>ピッチ</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>ヨー</translation>
    </message>
    <message>
        <source>Sensor Dashboard</source>
        <translation>センサーダッシュボード</translation>
    </message>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>無線ゲートウェイダッシュボード</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>ゲートウェイ</translation>
    </message>
    <message>
        <source>The spectrum comes with a later version.</source>
        <translation>スペクトル表示は今後のバージョンで追加されます。</translation>
    </message>
    <message>
        <source>The 3D view comes with a later version.</source>
        <translation>3D ビューは今後のバージョンで追加されます。</translation>
    </message>
    <message>
        <source>The firmware update comes with a later version.</source>
        <translation>ファームウェア更新は今後のバージョンで追加されます。</translation>
    </message>
    <message>
        <source>Choose a serial port and connect (%1)</source>
        <translation>シリアルポートを選択して接続します (%1)</translation>
    </message>
    <message>
        <source>Close the serial port (%1)</source>
        <translation>シリアルポートを閉じます (%1)</translation>
    </message>
    <message>
        <source>Plug in a module or a gateway, press &lt;b&gt;Open port&lt;/b&gt; (%1) and choose its serial port.</source>
        <translation>モジュールまたはゲートウェイを接続し、&lt;b&gt;ポートを開く&lt;/b&gt; (%1) を押して、そのシリアルポートを選択してください。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written: settings and logs of this run are not kept.</source>
        <translation>フォルダー %1 に書き込めないため、今回の設定とログは保存されません。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続中...</translation>
    </message>
    <message>
        <source>Connected... %1, %2 baud</source>
        <translation>接続済み... %1、%2 baud</translation>
    </message>
    <message>
        <source>Open Serial Port Error.</source>
        <translation>シリアルポートを開けませんでした。</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>ノード ID:%1</translation>
    </message>
    <message>
        <source>Waveforms of the selected node</source>
        <translation>選択したノードの波形を表示します</translation>
    </message>
    <message>
        <source>All radio nodes of a connected wireless gateway</source>
        <translation>接続中の無線ゲートウェイの全無線ノードを表示します</translation>
    </message>
    <message>
        <source>Language of the interface</source>
        <translation>表示言語</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Record the stream to CSV files (%1)</source>
        <translation>受信データを CSV ファイルに記録します (%1)</translation>
    </message>
    <message>
        <source>Recording: trouble</source>
        <translation>記録: 問題あり</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>記録中 %1</translation>
    </message>
    <message>
        <source>The translation for %1 cannot be loaded. The language stays as it is.</source>
        <translation>%1 の翻訳を読み込めません。表示言語は変更されません。</translation>
    </message>
</context>
<context>
    <name>form_com_select</name>
    <message>
        <source>Open serial port</source>
        <translation>シリアルポートを開く</translation>
    </message>
    <message>
        <source>&amp;Serial ports</source>
        <translation>シリアルポート(&amp;S)</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>シリアルポート</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>メーカー</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation>シリアルポートが見つかりません</translation>
    </message>
    <message>
        <source>Plug the device in: it appears here by itself.

To try the program without a device, start the simulator in a terminal with ./run or kv_simulator. It prints a path: type that below.</source>
        <translation>デバイスを接続すると、ここに自動的に表示されます。

デバイスなしで試すには、ターミナルで ./run または kv_simulator を実行してシミュレーターを起動し、表示されたパスを下に入力してください。</translation>
    </message>
    <message>
        <source>&amp;Port or path</source>
        <translation>ポートまたはパス(&amp;P)</translation>
    </message>
    <message>
        <source>A port of the list, or a path typed by hand: a pseudo-terminal or a link to a device file</source>
        <translation>一覧のポート、または直接入力したパス（疑似端末やデバイスファイルへのリンク）</translation>
    </message>
    <message>
        <source>&amp;Baud rate</source>
        <translation>ボーレート(&amp;B)</translation>
    </message>
    <message>
        <source>Bits per second, as set in the device</source>
        <translation>1 秒あたりのビット数（デバイスの設定と同じ値）</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Choose a port or type its path.</source>
        <translation>ポートを選択するか、パスを入力してください。</translation>
    </message>
    <message>
        <source>%1 is not there at the moment. Plug the device in, or choose another port.</source>
        <translation>現在 %1 は見つかりません。デバイスを接続するか、別のポートを選択してください。</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 はシリアルポートではありません。</translation>
    </message>
</context>
<context>
    <name>form_record</name>
    <message>
        <source>Record to file</source>
        <translation>ファイルに記録</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>フォルダー(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>記録レート</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>Free on disk</source>
        <translation>ディスクの空き</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Show in f&amp;older</source>
        <translation>フォルダーを開く(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the folder of the recording</source>
        <translation>記録先のフォルダーを開きます</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>この名前は長すぎます。</translation>
    </message>
    <message>
        <source>A name cannot hold any of %1</source>
        <translation>名前に次の文字は使えません: %1</translation>
    </message>
    <message>
        <source>This name is reserved by some systems. Choose another one.</source>
        <translation>この名前は一部のシステムで予約されています。別の名前を指定してください。</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>記録先のフォルダー</translation>
    </message>
    <message>
        <source>Nothing is connected: open a serial port first.</source>
        <translation>何も接続されていません。先にシリアルポートを開いてください。</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>記録を停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>記録を開始(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what has arrived and closes the file</source>
        <translation>受信済みのデータを書き込み、ファイルを閉じます</translation>
    </message>
    <message>
        <source>Writes every sample that arrives into a file</source>
        <translation>受信したすべてのサンプルをファイルに書き込みます</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記録中</translation>
    </message>
    <message>
        <source>Recording ended: the port was closed</source>
        <translation>ポートが閉じられたため、記録を終了しました</translation>
    </message>
    <message>
        <source>Recording stopped</source>
        <translation>記録を停止しました</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>記録していません</translation>
    </message>
    <message>
        <source>Recording goes on when this window is closed.</source>
        <translation>このウィンドウを閉じても記録は続きます。</translation>
    </message>
    <message>
        <source>Stop the recording to change this</source>
        <translation>変更するには記録を停止してください</translation>
    </message>
    <message>
        <source>This folder was created for the recording.</source>
        <translation>このフォルダーは記録用に作成されました。</translation>
    </message>
    <message>
        <source>This folder does not exist yet: starting creates it.</source>
        <translation>このフォルダーはまだありません。記録の開始時に作成されます。</translation>
    </message>
    <message>
        <source>Saved as %1; a new file begins every hour.</source>
        <translation>%1 として保存されます。ファイルは 1 時間ごとに新しくなります。</translation>
    </message>
    <message>
        <source>%1 records/s</source>
        <translation>%1 件/秒</translation>
    </message>
    <message>
        <source>%1, enough for days</source>
        <translation>%1（数日以上記録可能）</translation>
    </message>
    <message>
        <source>%1, enough for %2 h</source>
        <translation>%1（約 %2 時間記録可能）</translation>
    </message>
    <message>
        <source>%1, enough for %2 min</source>
        <translation>%1（約 %2 分間記録可能）</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 はフォルダーではなくファイルです。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created. Choose another one.</source>
        <translation>フォルダー %1 を作成できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>The disk is too slow. Records dropped: %1</source>
        <translation>ディスクの書き込みが追いつきません。破棄したレコード数: %1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>ファイルに書き込めません: %1</translation>
    </message>
    <message>
        <source>Records that could not be written: %1</source>
        <translation>書き込めなかったレコード数: %1</translation>
    </message>
    <message>
        <source>%1 has been deleted or moved. Stop and start again to record into a new file.</source>
        <translation>%1 が削除または移動されました。新しいファイルに記録するには、記録を停止してからもう一度開始してください。</translation>
    </message>
    <message>
        <source>The disk is nearly full.</source>
        <translation>ディスクの空き容量が残りわずかです。</translation>
    </message>
    <message>
        <source>Records written</source>
        <translation>書き込みレコード数</translation>
    </message>
    <message>
        <source>The folder %1 cannot be shown.</source>
        <translation>フォルダー %1 を開けません。</translation>
    </message>
</context>
<context>
    <name>form_settings</name>
    <message>
        <source>Device settings</source>
        <translation>デバイス設定</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation>識別(&amp;I)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>ビルド</translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation>モジュール(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Node ID</source>
        <translation>ノード ID(&amp;N)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Number of the module in a radio network, 0 to 255</source>
        <translation>無線ネットワーク内のモジュール番号 (0～255)</translation>
    </message>
    <message>
        <source>Output &amp;rate (Hz)</source>
        <translation>出力レート(&amp;R) (Hz)</translation>
    </message>
    <message>
        <source>&amp;Attitude mode</source>
        <translation>姿勢モード(&amp;A)</translation>
    </message>
    <message>
        <source>0: 6-axis, without magnetometer</source>
        <translation>0: 6 軸（磁気センサーなし）</translation>
    </message>
    <message>
        <source>1: 9-axis, with magnetometer</source>
        <translation>1: 9 軸（磁気センサーあり）</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>変更しない</translation>
    </message>
    <message>
        <source>Which settings can be changed depends on the device. Connect it and identify it.</source>
        <translation>変更できる設定はデバイスによって異なります。デバイスを接続して識別してください。</translation>
    </message>
    <message>
        <source>&amp;Save to device</source>
        <translation>デバイスに保存(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ommands</source>
        <translation>コマンド(&amp;O)</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>送受信</translation>
    </message>
    <message>
        <source>&amp;Copy log</source>
        <translation>ログをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing sent yet</source>
        <translation>まだ何も送信していません</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>Read info</source>
        <translation>情報を読み出す</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Stop output</source>
        <translation>出力を停止</translation>
    </message>
    <message>
        <source>Resume output</source>
        <translation>出力を再開</translation>
    </message>
    <message>
        <source>Save config</source>
        <translation>設定を保存</translation>
    </message>
    <message>
        <source>Log COM config</source>
        <translation>COM 設定を出力</translation>
    </message>
    <message>
        <source>Log user config</source>
        <translation>ユーザー設定を出力</translation>
    </message>
    <message>
        <source>Log disable</source>
        <translation>ログを無効化</translation>
    </message>
    <message>
        <source>Reboot</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>No device identified</source>
        <translation>デバイスは未識別です</translation>
    </message>
    <message>
        <source>Saving does not change the rate of this device.</source>
        <translation>このデバイスの出力レートは、保存しても変わりません。</translation>
    </message>
    <message>
        <source>Nothing is connected: open a serial port first.</source>
        <translation>何も接続されていません。先にシリアルポートを開いてください。</translation>
    </message>
    <message>
        <source>Waiting for the device: %1</source>
        <translation>デバイスの応答待ち: %1</translation>
    </message>
    <message>
        <source>Identify the device first.</source>
        <translation>先にデバイスを識別してください。</translation>
    </message>
    <message>
        <source>Choose a node ID first.</source>
        <translation>先にノード ID を選択してください。</translation>
    </message>
    <message>
        <source>Choose an output rate first.</source>
        <translation>先に出力レートを選択してください。</translation>
    </message>
    <message>
        <source>Sends %1</source>
        <translation>コマンド %1 を送信します</translation>
    </message>
    <message>
        <source>Stops the output, reads what the device is and resumes the output</source>
        <translation>出力を停止してデバイスの情報を読み出し、出力を再開します</translation>
    </message>
    <message>
        <source>Writes these settings and restarts the device</source>
        <translation>これらの設定を書き込み、デバイスを再起動します</translation>
    </message>
    <message>
        <source>Saving restarts the device; this takes 2 seconds.</source>
        <translation>保存するとデバイスが再起動します（所要時間 2 秒）。</translation>
    </message>
</context>
<context>
    <name>port_choice</name>
    <message>
        <source>Enter a baud rate.</source>
        <translation>ボーレートを入力してください。</translation>
    </message>
    <message>
        <source>Enter a whole number, such as %1.</source>
        <translation>%1 のような整数を入力してください。</translation>
    </message>
    <message>
        <source>Too low: the lowest rate is %1.</source>
        <translation>値が小さすぎます。下限は %1 です。</translation>
    </message>
    <message>
        <source>Too high: the highest rate is %1.</source>
        <translation>値が大きすぎます。上限は %1 です。</translation>
    </message>
</context>
<context>
    <name>product_profile</name>
    <message>
        <source>Legacy Wireless Gateway (0x62/0x63)</source>
        <translation>従来型無線ゲートウェイ (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Legacy Device</source>
        <translation>不明な従来型デバイス</translation>
    </message>
    <message>
        <source>Unknown Mz14 Device</source>
        <translation>不明な Mz14 デバイス</translation>
    </message>
    <message>
        <source>Unknown Wireless Gateway (0x62/0x63)</source>
        <translation>不明な無線ゲートウェイ (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Device</source>
        <translation>不明なデバイス</translation>
    </message>
</context>
<context>
    <name>serial_error_text</name>
    <message>
        <source>You are not allowed to open %1.</source>
        <translation>%1 を開く権限がありません。</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access.</source>
        <translation>このコンピューターの管理者にアクセス権を依頼してください。</translation>
    </message>
    <message>
        <source>Run &quot;%1&quot; in a terminal, then log out and in again.</source>
        <translation>ターミナルで「%1」を実行し、いったんログアウトしてから、もう一度ログインしてください。</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: the device was unplugged or switched off. Check the cable, then open the port again.</source>
        <translation>%1 との接続が切れました。デバイスが取り外されたか、電源が切れています。ケーブルを確認して、もう一度ポートを開いてください。</translation>
    </message>
    <message>
        <source>%1 is not there. Check the cable and that the device is switched on.</source>
        <translation>%1 が見つかりません。ケーブルと、デバイスの電源が入っていることを確認してください。</translation>
    </message>
    <message>
        <source>Another program uses %1. Close it and try again.</source>
        <translation>%1 は別のプログラムで使用中です。そのプログラムを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 is open already.</source>
        <translation>%1 はすでに開いています。</translation>
    </message>
    <message>
        <source>%1 is not a serial port, or it does not support %2 baud. Choose another port or baud rate.</source>
        <translation>%1 はシリアルポートではないか、%2 baud に対応していません。別のポートまたはボーレートを選択してください。</translation>
    </message>
    <message>
        <source>%1 cannot be used (error %2). Unplug the device, plug it in again and retry.</source>
        <translation>%1 を使用できません（エラー %2）。デバイスをいったん取り外し、接続し直してから、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>status_text</name>
    <message>
        <source>Unconnected...</source>
        <translation>未接続...</translation>
    </message>
    <message>
        <source>Connected...</source>
        <translation>接続済み...</translation>
    </message>
    <message>
        <source>Using fallback product profile.</source>
        <translation>代替の製品プロファイルを使用しています。</translation>
    </message>
    <message>
        <source>Product info deferred during live stream.</source>
        <translation>データ受信中のため、製品情報の取得を保留しています。</translation>
    </message>
    <message>
        <source>Product info pending...</source>
        <translation>製品情報を取得中...</translation>
    </message>
    <message>
        <source>Single node (0x%1)</source>
        <translation>単一ノード (0x%1)</translation>
    </message>
    <message>
        <source>Gateway (0x%1)</source>
        <translation>ゲートウェイ (0x%1)</translation>
    </message>
    <message>
        <source>Items %1</source>
        <translation>項目 %1</translation>
    </message>
    <message>
        <source>Connected.
No frame stream detected.</source>
        <translation>接続しました。
フレームが検出されません。</translation>
    </message>
    <message>
        <source>Building connection...</source>
        <translation>接続を確立しています...</translation>
    </message>
    <message>
        <source>[Serial]
%1 %2
</source>
        <translation>[シリアル]
%1 %2
</translation>
    </message>
    <message>
        <source>Protocol:</source>
        <translation>プロトコル:</translation>
    </message>
    <message>
        <source>FrameRate:</source>
        <translation>フレームレート:</translation>
    </message>
    <message>
        <source>Wireless</source>
        <translation>無線</translation>
    </message>
    <message>
        <source>DONGLE ID</source>
        <translation>ドングル ID</translation>
    </message>
    <message>
        <source>TOTAL OF NODE</source>
        <translation>ノード総数</translation>
    </message>
</context>
</TS>

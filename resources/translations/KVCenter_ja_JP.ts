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
    <name>AlarmPanel</name>
    <message>
        <source>Alarm</source>
        <translation>警報</translation>
    </message>
    <message>
        <source>Judge the spectra by this preset</source>
        <translation>このプリセットでスペクトルを判定</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>カスタム…</translation>
    </message>
    <message>
        <source>Set thresholds and frequencies yourself</source>
        <translation>しきい値と周波数を任意に設定</translation>
    </message>
</context>
<context>
    <name>AlarmRuleEditor</name>
    <message>
        <source>From</source>
        <translation>下限周波数</translation>
    </message>
    <message>
        <source>To (0: no limit)</source>
        <translation>上限周波数 (0: なし)</translation>
    </message>
    <message>
        <source>Watch from</source>
        <translation>注意しきい値</translation>
    </message>
    <message>
        <source>Alarm from</source>
        <translation>警報しきい値</translation>
    </message>
    <message>
        <source>Spectra to raise</source>
        <translation>発生フレーム数</translation>
    </message>
    <message>
        <source>Spectra to clear</source>
        <translation>解除フレーム数</translation>
    </message>
    <message>
        <source>Use this rule</source>
        <translation>このルールを適用</translation>
    </message>
</context>
<context>
    <name>AppearanceMenu</name>
    <message>
        <source>&amp;System</source>
        <translation>システム(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>ダーク(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外観(&amp;A)</translation>
    </message>
</context>
<context>
    <name>AttitudeCard</name>
    <message>
        <source>Attitude</source>
        <translation>姿勢</translation>
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
</context>
<context>
    <name>AttitudeFigures</name>
    <message>
        <source>Live</source>
        <translation>現在</translation>
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
        <source>Quaternion</source>
        <translation>クォータニオン</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>基準との差</translation>
    </message>
</context>
<context>
    <name>BandEditor</name>
    <message>
        <source>Name of the band</source>
        <translation>帯域の名前</translation>
    </message>
    <message>
        <source>Lower edge</source>
        <translation>下限周波数</translation>
    </message>
    <message>
        <source>Upper edge</source>
        <translation>上限周波数</translation>
    </message>
    <message>
        <source>Measure this band</source>
        <translation>この帯域を測定</translation>
    </message>
</context>
<context>
    <name>BandPanel</name>
    <message>
        <source>Peak and bands</source>
        <translation>ピークと帯域</translation>
    </message>
    <message>
        <source>Back to the automatic bands</source>
        <translation>自動の帯域に戻す</translation>
    </message>
    <message>
        <source>Add band…</source>
        <translation>帯域を追加…</translation>
    </message>
    <message>
        <source>Measure the power of a band of your own</source>
        <translation>任意の帯域のパワーを測定</translation>
    </message>
    <message>
        <source>Peak: %1 Hz on %2, %3 %4</source>
        <translation>ピーク: %1 Hz (%2)、%3 %4</translation>
    </message>
    <message>
        <source>%1, %2–%3 Hz</source>
        <translation>%1、%2～%3 Hz</translation>
    </message>
    <message>
        <source>Coherence of the axes</source>
        <translation>軸間コヒーレンス</translation>
    </message>
    <message>
        <source>How alike the spectra of two axes are in shape, from 0 to 1</source>
        <translation>2 軸のスペクトル形状の類似度 (0～1)</translation>
    </message>
</context>
<context>
    <name>BodyModel</name>
    <message>
        <source>The model cannot be shown.</source>
        <translation>モデルを表示できません。</translation>
    </message>
</context>
<context>
    <name>CaptureActions</name>
    <message>
        <source>Stop &amp;capture</source>
        <translation>キャプチャを停止(&amp;C)</translation>
    </message>
    <message>
        <source>Start &amp;capture</source>
        <translation>キャプチャを開始(&amp;C)</translation>
    </message>
    <message>
        <source>Captures every byte, sample and event into one file</source>
        <translation>すべてのバイト、サンプル、イベントを 1 つのファイルにキャプチャします</translation>
    </message>
    <message>
        <source>Capturing</source>
        <translation>キャプチャ中</translation>
    </message>
    <message>
        <source>Captured into %1</source>
        <translation>キャプチャを %1 に保存しました</translation>
    </message>
</context>
<context>
    <name>CaptureBadge</name>
    <message>
        <source>Capture %1</source>
        <translation>キャプチャ中 %1</translation>
    </message>
    <message>
        <source>Capture: problem</source>
        <translation>キャプチャ: 問題あり</translation>
    </message>
</context>
<context>
    <name>CaptureFault</name>
    <message>
        <source>The capture %1 cannot be opened: %2</source>
        <translation>キャプチャ %1 を開けません: %2</translation>
    </message>
    <message>
        <source>%1 is not a capture: it does not begin like an MCAP file.</source>
        <translation>%1 はキャプチャではありません。ファイルの先頭が MCAP 形式ではありません。</translation>
    </message>
    <message>
        <source>Nothing in the capture %1 can be read: it is empty or damaged.</source>
        <translation>キャプチャ %1 から読み込める内容がありません。空であるか、破損しています。</translation>
    </message>
    <message>
        <source>%1 holds no received bytes that could be played back. Another program may have written it.</source>
        <translation>%1 には再生できる受信データがありません。別のプログラムが書き込んだファイルの可能性があります。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be created: %2</source>
        <translation>キャプチャ %1 を作成できません: %2</translation>
    </message>
    <message>
        <source>The capture %1 has ended: %2. What was written before is complete.</source>
        <translation>キャプチャ %1 が終了しました: %2。それまでの内容は完全に書き込まれています。</translation>
    </message>
    <message>
        <source>The capture %1 has ended: the file was deleted or moved.</source>
        <translation>ファイルが削除または移動されたため、キャプチャ %1 が終了しました。</translation>
    </message>
    <message>
        <source>The capture %1 is being written at this moment.</source>
        <translation>キャプチャ %1 は現在書き込み中です。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be repaired: its folder is read-only. It has not been changed.</source>
        <translation>フォルダーが読み取り専用のため、キャプチャ %1 を修復できません。ファイルは変更されていません。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be repaired: %2. It has not been changed.</source>
        <translation>キャプチャ %1 を修復できません: %2。ファイルは変更されていません。</translation>
    </message>
</context>
<context>
    <name>CaptureRun</name>
    <message>
        <source>the folder cannot be created</source>
        <translation>フォルダーを作成できません</translation>
    </message>
</context>
<context>
    <name>CeilingField</name>
    <message>
        <source>now %1</source>
        <translation>現在 %1</translation>
    </message>
</context>
<context>
    <name>ChartBarTools</name>
    <message>
        <source>Save charts</source>
        <translation>グラフを保存</translation>
    </message>
    <message>
        <source>List of markers; M sets one</source>
        <translation>マーカーの一覧（M キーでマーカーを設定）</translation>
    </message>
    <message>
        <source>Let each chart have its own time axis and cursors</source>
        <translation>時間軸とカーソルをグラフごとに独立させる</translation>
    </message>
    <message>
        <source>Couple time axes and cursors of all charts</source>
        <translation>すべてのグラフの時間軸とカーソルを連動させる</translation>
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
    <message>
        <source>In force: %1 Hz, as the rate is now %2 Hz</source>
        <translation>適用中: %1 Hz（現在のレートが %2 Hz のため）</translation>
    </message>
    <message>
        <source>Apply %1 Hz</source>
        <translation>%1 Hz を適用</translation>
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
    <name>ChartMeasures</name>
    <message>
        <source>Between A and B, %1 to %2</source>
        <translation>A/B 間: %1～%2</translation>
    </message>
    <message>
        <source>Over the view, %1 to %2</source>
        <translation>表示範囲: %1～%2</translation>
    </message>
</context>
<context>
    <name>ChartRangeRow</name>
    <message>
        <source>Left end of the horizontal axis</source>
        <translation>横軸の左端</translation>
    </message>
    <message>
        <source>Right end of the horizontal axis</source>
        <translation>横軸の右端</translation>
    </message>
    <message>
        <source>Lower end of the value axis</source>
        <translation>値軸の下限</translation>
    </message>
    <message>
        <source>Upper end of the value axis</source>
        <translation>値軸の上限</translation>
    </message>
    <message>
        <source>Automatic values</source>
        <translation>値軸を自動調整</translation>
    </message>
    <message>
        <source>Fit the value axis to what is visible</source>
        <translation>表示中の範囲に値軸を合わせる</translation>
    </message>
</context>
<context>
    <name>ChartSaver</name>
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
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 に書き込めませんでした: %2</translation>
    </message>
    <message>
        <source>Save the samples</source>
        <translation>サンプルを保存</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG 画像 (*.svg)</translation>
    </message>
    <message>
        <source>Save the samples of all charts</source>
        <translation>すべてのグラフのサンプルを保存</translation>
    </message>
    <message>
        <source>Save pictures of all charts</source>
        <translation>すべてのグラフの画像を保存</translation>
    </message>
    <message>
        <source>No chart has samples.</source>
        <translation>サンプルのあるグラフがありません。</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n file(s) in %1</source>
        <translation>
            <numerusform>%n 個のファイルを %1 に保存しました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandSession</name>
    <message>
        <source>(no reply)</source>
        <translation>（応答なし）</translation>
    </message>
    <message>
        <source>(noise)</source>
        <translation>（ノイズ）</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Opens this port at one rate after the other until the device answers</source>
        <translation>デバイスが応答するまで、このポートをボーレートを変えながら開きます</translation>
    </message>
    <message>
        <source>Try the &amp;usual baud rates</source>
        <translation>一般的なボーレートを試す(&amp;U)</translation>
    </message>
    <message>
        <source>Only noise is arriving. The baud rate may be wrong.</source>
        <translation>ノイズしか受信していません。ボーレートが違う可能性があります。</translation>
    </message>
</context>
<context>
    <name>DashboardWindow</name>
    <message>
        <source>This window could not be loaded. See the log for the reason.</source>
        <translation>このウィンドウを読み込めませんでした。原因はログを確認してください。</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
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
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Open Serial Port Error.</source>
        <translation>シリアルポートを開けませんでした。</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>The device may be waiting in its bootloader for the rest. Plug it in, then connect to it.</source>
        <translation>デバイスはブートローダーで残りのデータを待っている可能性があります。デバイスをケーブルでつないでから、「接続」を押してください。</translation>
    </message>
    <message>
        <source>Connection error.</source>
        <translation>接続エラーが発生しました。</translation>
    </message>
</context>
<context>
    <name>FFTChartView</name>
    <message>
        <source>Waiting for samples</source>
        <translation>サンプルを待っています</translation>
    </message>
    <message>
        <source>No spectrum yet</source>
        <translation>スペクトルはまだありません</translation>
    </message>
    <message>
        <source>Press Start above.</source>
        <translation>上の「開始」を押してください。</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>The selected node is not sending any at the moment.</source>
        <translation>選択したノードは現在サンプルを送信していません。</translation>
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
        <translation>%1監視: データ待ち</translation>
    </message>
    <message>
        <source>%1 monitoring: no dominant peak yet.</source>
        <translation>%1監視: 卓越ピークはまだありません。</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is below the watch level.</source>
        <translation>%1監視: %2 のピークは注意レベル未満です。</translation>
    </message>
    <message>
        <source>%1 watch: %2 is approaching the alarm threshold.</source>
        <translation>%1監視（注意）: %2 のピークが警報しきい値に近づいています。</translation>
    </message>
    <message>
        <source>%1 alarm: %2 persisted above threshold.</source>
        <translation>%1監視（警報）: %2 のピークがしきい値を超え続けています。</translation>
    </message>
    <message>
        <source>%1 monitoring: dominant peak outside target band</source>
        <translation>%1監視: 卓越ピークが対象帯域外</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is outside the target band.</source>
        <translation>%1監視: %2 のピークは対象帯域外です。</translation>
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
    <name>FftFiles</name>
    <message>
        <source>Save a snapshot</source>
        <translation>スナップショットを保存</translation>
    </message>
    <message>
        <source>Spectrum snapshot (*.json)</source>
        <translation>スペクトルのスナップショット (*.json)</translation>
    </message>
    <message>
        <source>Save the spectra</source>
        <translation>スペクトルを保存</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>CSV ファイル (*.csv)</translation>
    </message>
    <message>
        <source>Open a snapshot</source>
        <translation>スナップショットを開く</translation>
    </message>
    <message>
        <source>%1 points, %2 Hz, window %3</source>
        <translation>%1 点、%2 Hz、窓関数 %3</translation>
    </message>
    <message>
        <source>Bands: %1</source>
        <translation>帯域: %1</translation>
    </message>
    <message>
        <source>Coherence: %1</source>
        <translation>コヒーレンス: %1</translation>
    </message>
    <message>
        <source>Alarm (%1): %2</source>
        <translation>警報 (%1): %2</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>設定: %1</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>現在と同じ</translation>
    </message>
    <message>
        <source>other than now (%1)</source>
        <translation>現在と異なる (%1)</translation>
    </message>
    <message>
        <source>Format: %1</source>
        <translation>形式: %1</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>The file is no spectrum snapshot.</source>
        <translation>スペクトルのスナップショットファイルではありません。</translation>
    </message>
    <message>
        <source>The file could not be read: %1</source>
        <translation>ファイルを読み込めませんでした: %1</translation>
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
    <name>FileOpening</name>
    <message>
        <source>Open a capture or a recording</source>
        <translation>キャプチャまたは記録を開く</translation>
    </message>
    <message>
        <source>Captures and recordings (*.mcap *.csv)</source>
        <translation>キャプチャと記録 (*.mcap *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>GatewayDashboard</name>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペースキー</translation>
    </message>
    <message>
        <source>Hide these charts</source>
        <translation>この種類のグラフを非表示</translation>
    </message>
    <message>
        <source>Show these charts of the chosen nodes</source>
        <translation>選択したノードについて、この種類のグラフを表示</translation>
    </message>
    <message>
        <source>%1 · %2 Hz</source>
        <translation>%1 · %2 Hz</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>グラフが選択されていません</translation>
    </message>
    <message>
        <source>No node is chosen</source>
        <translation>ノードが選択されていません</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>表示するものを上で選択してください。</translation>
    </message>
    <message>
        <source>Click a node in the table to see its waveforms. Up to %1 nodes are shown together.</source>
        <translation>表のノードをクリックすると波形が表示されます（同時に最大 %1 ノード）。</translation>
    </message>
    <message>
        <source>Waiting for samples</source>
        <translation>サンプルを待っています</translation>
    </message>
    <message>
        <source>Connect a wireless gateway; its nodes appear here.</source>
        <translation>無線ゲートウェイを接続すると、そのノードがここに表示されます。</translation>
    </message>
    <message>
        <source>Freeze the charts; the table keeps updating</source>
        <translation>グラフを一時停止（表の更新は続きます）</translation>
    </message>
    <message>
        <source>Continue with the newest samples</source>
        <translation>最新のサンプルから表示を再開</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>重ね表示</translation>
    </message>
    <message>
        <source>Show each node in a chart of its own</source>
        <translation>ノードごとに別々のグラフで表示</translation>
    </message>
    <message>
        <source>Show one quantity of all chosen nodes in one plot</source>
        <translation>選択した全ノードの同じ種類の値を 1 つのグラフに重ねて表示</translation>
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
    <message>
        <source>Nodes %1 · connection ended</source>
        <translation>ノード %1 · 接続終了</translation>
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
    <message>
        <source>Ended</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>GatewayNodeTable</name>
    <message>
        <source>Node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Rate
Hz</source>
        <translation>レート
Hz</translation>
    </message>
    <message>
        <source>Newest
ago</source>
        <translation>最終受信
から</translation>
    </message>
    <message>
        <source>Missing
samples</source>
        <translation>欠落
サンプル</translation>
    </message>
    <message>
        <source>Temp.
°C</source>
        <translation>温度
°C</translation>
    </message>
    <message>
        <source>Pressure
Pa</source>
        <translation>気圧
Pa</translation>
    </message>
    <message>
        <source>Node %1, %2</source>
        <translation>ノード %1、%2</translation>
    </message>
    <message>
        <source>%1 of %2 nodes chosen for charts</source>
        <translation>グラフに表示するノード: %1 / %2</translation>
    </message>
    <message>
        <source>Move the node and its charts up</source>
        <translation>ノードとそのグラフを上に移動</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+↑</translation>
    </message>
    <message>
        <source>Move the node and its charts down</source>
        <translation>ノードとそのグラフを下に移動</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+↓</translation>
    </message>
    <message>
        <source>%1 nodes are already shown. Remove one first.</source>
        <translation>すでに %1 ノードを表示しています。先にいずれかの選択を解除してください。</translation>
    </message>
</context>
<context>
    <name>KvUartPort</name>
    <message>
        <source>This program cannot open files.</source>
        <translation>このプログラムではファイルを開けません。</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>The translation for %1 cannot be loaded. The language stays as it is.</source>
        <translation>%1 の翻訳を読み込めません。表示言語は変更されません。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Language of the interface</source>
        <translation>表示言語</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>Sensor Dashboard</source>
        <translation>センサーダッシュボード</translation>
    </message>
    <message>
        <source>Waveforms of the selected node</source>
        <translation>選択したノードの波形を表示します</translation>
    </message>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>無線ゲートウェイダッシュボード</translation>
    </message>
    <message>
        <source>All radio nodes of a connected wireless gateway</source>
        <translation>接続中の無線ゲートウェイの全無線ノードを表示します</translation>
    </message>
    <message>
        <source>Spectrum of the selected node, with alarms</source>
        <translation>選択したノードのスペクトルと警報を表示します</translation>
    </message>
    <message>
        <source>Attitude of the selected node in three dimensions</source>
        <translation>選択したノードの姿勢を 3D で表示します</translation>
    </message>
    <message>
        <source>Record the stream to CSV files (%1)</source>
        <translation>受信データを CSV ファイルに記録します (%1)</translation>
    </message>
    <message>
        <source>How completely the data arrive: errors, gaps, losses (%1)</source>
        <translation>データの受信状況（エラー、途切れ、欠落）を表示します (%1)</translation>
    </message>
    <message>
        <source>Load new firmware into the device</source>
        <translation>デバイスに新しいファームウェアを書き込みます</translation>
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
        <source>End the program</source>
        <translation>プログラムを終了します</translation>
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
        <source>Plug in a module or a gateway, press &lt;b&gt;Open port&lt;/b&gt; (%1) and choose its serial port.</source>
        <translation>モジュールまたはゲートウェイを接続し、&lt;b&gt;ポートを開く&lt;/b&gt; (%1) を押して、そのシリアルポートを選択してください。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written: settings and logs of this run are not kept.</source>
        <translation>フォルダー %1 に書き込めないため、今回の設定とログは保存されません。</translation>
    </message>
    <message>
        <source>&amp;Close file</source>
        <translation>ファイルを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>ポートを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Play back a capture or a CSV recording (%1)</source>
        <translation>キャプチャまたは CSV 記録を再生 (%1)</translation>
    </message>
</context>
<context>
    <name>MarkerList</name>
    <message>
        <source>Marker %1</source>
        <translation>マーカー %1</translation>
    </message>
</context>
<context>
    <name>MarkerPanel</name>
    <message>
        <source>Markers</source>
        <translation>マーカー</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>マーカーなし</translation>
    </message>
    <message>
        <source>M sets one at the pointer, or at the newest sample.</source>
        <translation>M キーを押すと、マウスポインターの位置または最新のサンプルにマーカーを設定します。</translation>
    </message>
    <message>
        <source>Show this place</source>
        <translation>この位置を表示</translation>
    </message>
    <message>
        <source>Text of the marker</source>
        <translation>マーカーのテキスト</translation>
    </message>
    <message>
        <source>Remove this marker</source>
        <translation>このマーカーを削除</translation>
    </message>
</context>
<context>
    <name>MeasurePanel</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the table for a spreadsheet</source>
        <translation>表計算ソフト用に表をコピー</translation>
    </message>
</context>
<context>
    <name>MeasureTable</name>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>標準偏差</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>Peak-peak</source>
        <translation>P-P 値</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>点数</translation>
    </message>
</context>
<context>
    <name>MeshFile</name>
    <message>
        <source>The mesh file cannot be read: %1</source>
        <translation>メッシュファイルを読み込めません: %1</translation>
    </message>
    <message>
        <source>The mesh file is larger than %1 MiB.</source>
        <translation>メッシュファイルが %1 MiB を超えています。</translation>
    </message>
    <message>
        <source>The mesh file is damaged, or of an unsupported kind.</source>
        <translation>メッシュファイルが破損しているか、対応していない形式です。</translation>
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
    <name>NodeCard</name>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>The node whose values are shown</source>
        <translation>値を表示するノード</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>ノード ID:%1</translation>
    </message>
</context>
<context>
    <name>NodeOverlay</name>
    <message>
        <source>Node %1</source>
        <translation>ノード %1</translation>
    </message>
</context>
<context>
    <name>ObjReader</name>
    <message>
        <source>The OBJ file cannot be read: %1</source>
        <translation>OBJ ファイルを読み込めません: %1</translation>
    </message>
    <message>
        <source>The OBJ file is larger than %1 MiB.</source>
        <translation>OBJ ファイルが %1 MiB を超えています。</translation>
    </message>
    <message>
        <source>The file is not an OBJ model: it holds no text.</source>
        <translation>このファイルはテキスト形式ではないため、OBJ モデルではありません。</translation>
    </message>
    <message>
        <source>The file is not an OBJ model.</source>
        <translation>このファイルは OBJ モデルではありません。</translation>
    </message>
    <message>
        <source>The OBJ model has more than %1 triangles.</source>
        <translation>OBJ モデルの三角形が %1 個を超えています。</translation>
    </message>
    <message>
        <source>The OBJ file is damaged: a face names a vertex that does not exist.</source>
        <translation>OBJ ファイルが破損しています。存在しない頂点を参照する面があります。</translation>
    </message>
    <message>
        <source>The OBJ model has coordinates that are not finite or too large.</source>
        <translation>OBJ モデルに、有限でない座標または大きすぎる座標があります。</translation>
    </message>
    <message>
        <source>The OBJ file holds no faces to show.</source>
        <translation>OBJ ファイルに表示できる面がありません。</translation>
    </message>
    <message>
        <source>Line %1 of the OBJ file contains a coordinate that is not a number.</source>
        <translation>OBJ ファイルの %1 行目に、数値ではない座標があります。</translation>
    </message>
</context>
<context>
    <name>OverlayChart</name>
    <message>
        <source>Show %1 of all chosen nodes</source>
        <translation>選択した全ノードの %1 を表示</translation>
    </message>
</context>
<context>
    <name>PictureChips</name>
    <message>
        <source>%1x</source>
        <translation>%1 倍</translation>
    </message>
    <message>
        <source>PNG at %1 times the size</source>
        <translation>%1 倍サイズの PNG</translation>
    </message>
</context>
<context>
    <name>PlaybackBar</name>
    <message>
        <source>Unthrottled</source>
        <translation>速度制限なし</translation>
    </message>
    <message>
        <source>Reconstructed from a CSV recording: fields that it does not hold are 0, and times are spread over each second.</source>
        <translation>CSV 記録から再構成しています。記録にない項目は 0 になり、時刻は各 1 秒に均等に割り当てられます。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>終端です</translation>
    </message>
    <message>
        <source>reached: %1</source>
        <translation>実際: %1</translation>
    </message>
    <message>
        <source>%1. This computer cannot keep up; nothing is left out.</source>
        <translation>%1。このコンピューターでは追いつけません。データの省略はありません。</translation>
    </message>
    <message>
        <source>Play the whole file</source>
        <translation>ファイル全体を再生</translation>
    </message>
    <message>
        <source>Play from</source>
        <translation>再生の開始位置</translation>
    </message>
    <message>
        <source>Play to</source>
        <translation>再生の終了位置</translation>
    </message>
    <message>
        <source>The end</source>
        <translation>終端</translation>
    </message>
    <message>
        <source>The start</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Here (%1)</source>
        <translation>現在位置 (%1)</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>再生または一時停止 (スペース)</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>Play one packet</source>
        <translation>1 パケットを再生</translation>
    </message>
    <message>
        <source>How fast the file is played</source>
        <translation>ファイルの再生速度</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>記録レート</translation>
    </message>
    <message>
        <source>Position in the file</source>
        <translation>ファイル内の位置</translation>
    </message>
    <message>
        <source>Position and length</source>
        <translation>位置と長さ</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>ループ</translation>
    </message>
    <message>
        <source>Play again from the start when the end is reached</source>
        <translation>終端に達したら先頭から再生</translation>
    </message>
    <message>
        <source>Skip gaps</source>
        <translation>空白をスキップ</translation>
    </message>
    <message>
        <source>Skip times without data of more than 2 s</source>
        <translation>データのない時間が 2 秒を超える部分をスキップ</translation>
    </message>
    <message>
        <source>Part...</source>
        <translation>区間...</translation>
    </message>
    <message>
        <source>Play from marker to marker</source>
        <translation>マーカー間を再生</translation>
    </message>
    <message>
        <source>Rate that is reached</source>
        <translation>実際の速度</translation>
    </message>
</context>
<context>
    <name>Qt6ModelAsset</name>
    <message>
        <source>No 3D asset was selected.</source>
        <translation>3D モデルが選択されていません。</translation>
    </message>
    <message>
        <source>The selected mesh file could not be found.</source>
        <translation>選択したメッシュファイルが見つかりません。</translation>
    </message>
    <message>
        <source>The selected OBJ file could not be found.</source>
        <translation>選択した OBJ ファイルが見つかりません。</translation>
    </message>
    <message>
        <source>Unsupported 3D asset. Choose a bundled .obj model, an external .obj file, or a preconverted .mesh file.</source>
        <translation>対応していない 3D モデルです。付属の .obj モデル、外部の .obj ファイル、または変換済みの .mesh ファイルを選択してください。</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>The connection was lost for %1 s.</source>
        <translation>接続が %1 秒間切れていました。</translation>
    </message>
</context>
<context>
    <name>RecordingActions</name>
    <message>
        <source>Marker %1 at %2 s</source>
        <translation>マーカー %1: %2 s</translation>
    </message>
    <message>
        <source>Marker %1</source>
        <translation>マーカー %1</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Recording stopped: %1 records</source>
        <translation>記録を停止しました: %1 件</translation>
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
        <source>Records with the last folder and name</source>
        <translation>前回のフォルダーと名前で記録します</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>マーカー</translation>
    </message>
    <message>
        <source>Marker at %1 s</source>
        <translation>マーカー: %1 s</translation>
    </message>
    <message>
        <source>Markers go into recordings and captures: start one first</source>
        <translation>マーカーは記録とキャプチャに保存されます。先にどちらかを開始してください</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Recording %1</source>
        <translation>記録中 %1</translation>
    </message>
    <message>
        <source>Recording: waiting</source>
        <translation>記録: 待機中</translation>
    </message>
    <message>
        <source>Recording: problem</source>
        <translation>記録: 問題あり</translation>
    </message>
</context>
<context>
    <name>RecordingReader</name>
    <message>
        <source>The recording %1 cannot be opened: %2</source>
        <translation>記録 %1 を開けません: %2</translation>
    </message>
    <message>
        <source>The recording %1 is empty.</source>
        <translation>記録 %1 は空です。</translation>
    </message>
    <message>
        <source>%1 is not a recording of this program: its columns are different.</source>
        <translation>%1 はこのプログラムの記録ではありません。列の構成が異なります。</translation>
    </message>
    <message>
        <source>The recording %1 holds no records.</source>
        <translation>記録 %1 にレコードがありません。</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Samples</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>表示範囲</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Save tables…</source>
        <translation>表を保存…</translation>
    </message>
    <message>
        <source>A CSV file of each chart</source>
        <translation>グラフごとに CSV ファイルを保存</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Save pictures…</source>
        <translation>画像を保存…</translation>
    </message>
    <message>
        <source>A picture of each chart</source>
        <translation>グラフごとに画像を保存</translation>
    </message>
    <message>
        <source>The buttons of each chart save only that chart, in the same way.</source>
        <translation>各グラフのボタンでは、そのグラフだけを同じ設定で保存します。</translation>
    </message>
</context>
<context>
    <name>SceneMarks</name>
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
        <source>No chart is chosen</source>
        <translation>グラフが選択されていません</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>表示するものを上で選択してください。</translation>
    </message>
    <message>
        <source>Continue with the newest samples</source>
        <translation>最新のサンプルから表示を再開</translation>
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
        <source>Angular velocity</source>
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
    <name>SessionCapture</name>
    <message>
        <source>The disk is too slow. Not captured: %1 chunks or samples.</source>
        <translation>ディスクの書き込みが追いつきません。キャプチャされなかったチャンクまたはサンプルの数: %1</translation>
    </message>
</context>
<context>
    <name>SpectrumChart</name>
    <message>
        <source>%1 points · %2 Hz · %3 · %4 Hz per bin</source>
        <translation>%1 点 · %2 Hz · %3 · Δf %4 Hz</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Show amplitudes as they are</source>
        <translation>振幅をリニア表示</translation>
    </message>
    <message>
        <source>Show amplitudes in decibels</source>
        <translation>振幅をデシベル表示</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>フィット</translation>
    </message>
    <message>
        <source>Show amplitudes up to the set maximum</source>
        <translation>設定した上限まで振幅を表示</translation>
    </message>
    <message>
        <source>Fit the amplitude axis to the curves beyond 0 Hz</source>
        <translation>0 Hz を除く曲線に振幅軸を合わせる</translation>
    </message>
    <message>
        <source>Remove the cursors A and B</source>
        <translation>カーソル A/B を消去</translation>
    </message>
    <message>
        <source>Measure between the cursors A and B</source>
        <translation>カーソル A/B 間を測定</translation>
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
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>グラフの画像を保存</translation>
    </message>
    <message>
        <source>Save the spectra as a table</source>
        <translation>スペクトルを表として保存</translation>
    </message>
    <message>
        <source>Save a snapshot of spectra and analysis</source>
        <translation>スペクトルと解析のスナップショットを保存</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Level (dB, 0 dB = 1 %1)</source>
        <translation>レベル (dB、0 dB = 1 %1)</translation>
    </message>
    <message>
        <source>Block %1 %</source>
        <translation>ブロック %1 %</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Limits of the axes, size of pictures</source>
        <translation>軸の範囲、画像のサイズ</translation>
    </message>
    <message>
        <source>Show the contents of a saved snapshot</source>
        <translation>保存したスナップショットの内容を表示</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
</context>
<context>
    <name>SpectrumViewState</name>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connecting...</source>
        <translation>接続中...</translation>
    </message>
    <message>
        <source>Connected... %1, %2 baud</source>
        <translation>接続済み... %1、%2 baud</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>ノード ID:%1</translation>
    </message>
    <message>
        <source>Unconnected...</source>
        <translation>未接続...</translation>
    </message>
    <message>
        <source>Playing back %1</source>
        <translation>%1 を再生中</translation>
    </message>
</context>
<context>
    <name>ThreeDScene</name>
    <message>
        <source>Drag to turn, right-drag to move, wheel to zoom, double-click to reset</source>
        <translation>ドラッグで回転、右ドラッグで移動、ホイールでズーム、ダブルクリックでリセット</translation>
    </message>
</context>
<context>
    <name>TimeChart</name>
    <message>
        <source>Waiting for samples</source>
        <translation>サンプルを待っています</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Back to the newest samples</source>
        <translation>最新のサンプルに戻る</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Span and limits of the axes</source>
        <translation>時間幅と軸の範囲</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
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
        <source>Home</source>
        <translation>Home</translation>
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
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Show %1 seconds</source>
        <translation>%1 秒間を表示</translation>
    </message>
    <message>
        <source>No new samples</source>
        <translation>新しいサンプルがありません</translation>
    </message>
</context>
<context>
    <name>TimeViewState</name>
    <message>
        <source>t %1</source>
        <translation>t %1</translation>
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
    <name>TriggerRow</name>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Watch %1</source>
        <translation>%1 を監視</translation>
    </message>
    <message>
        <source>Rising through the level</source>
        <translation>上昇方向にレベルを通過</translation>
    </message>
    <message>
        <source>Falling through the level</source>
        <translation>下降方向にレベルを通過</translation>
    </message>
    <message>
        <source>Crossing the level either way</source>
        <translation>方向を問わずレベルを通過</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Leaving the band between two levels</source>
        <translation>2 つのレベルの範囲から外れる</translation>
    </message>
    <message>
        <source>Other end of the band</source>
        <translation>範囲のもう一方の端</translation>
    </message>
    <message>
        <source>Share of the picture before the event</source>
        <translation>表示範囲のうちイベントより前の割合</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>オート</translation>
    </message>
    <message>
        <source>Run live while nothing happens</source>
        <translation>イベントがない間はリアルタイムで表示</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>ノーマル</translation>
    </message>
    <message>
        <source>Hold each event until the next</source>
        <translation>次のイベントまで各イベントをホールド</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>シングル</translation>
    </message>
    <message>
        <source>Hold the first event</source>
        <translation>最初のイベントをホールド</translation>
    </message>
    <message>
        <source>Set a marker</source>
        <translation>マーカーを設定</translation>
    </message>
    <message>
        <source>Mark each event that was caught</source>
        <translation>捕捉した各イベントにマーカーを設定</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>解除</translation>
    </message>
    <message>
        <source>Back to the live samples; wait for the next event</source>
        <translation>最新のサンプルに戻り、次のイベントを待つ</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Start a recording with the event, with the last folder and name</source>
        <translation>イベントと同時に、前回のフォルダーと名前で記録を開始</translation>
    </message>
    <message>
        <source>Trigger level; drag its line to change it</source>
        <translation>トリガーレベル（線のドラッグでも変更可能）</translation>
    </message>
</context>
<context>
    <name>UpdateNoteCard</name>
    <message>
        <source>The device runs its bootloader and sends no data: restart it, or choose a firmware.</source>
        <translation>デバイスはブートローダーを実行中で、データを送りません。デバイスを再起動するか、ファームウェアを選択してください。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Choose firmware</source>
        <translation>ファームウェアを選択</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>通知を消去</translation>
    </message>
    <message>
        <source>The device is waiting in its bootloader.</source>
        <translation>デバイスはブートローダーで待機しています。</translation>
    </message>
    <message>
        <source>Chooses the same file, connects and downloads it</source>
        <translation>同じファイルを選択し、接続して書き込みます</translation>
    </message>
    <message>
        <source>Removes the reminder of this update</source>
        <translation>この更新についての通知を消去します</translation>
    </message>
</context>
<context>
    <name>UpdateReport</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Chip</source>
        <translation>チップ</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>%1 at %2 baud</source>
        <translation>%1、%2 ボー</translation>
    </message>
    <message>
        <source>Old build</source>
        <translation>以前のビルド</translation>
    </message>
    <message>
        <source>New build</source>
        <translation>新しいビルド</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>フラッシュ</translation>
    </message>
    <message>
        <source>Status of the bootloader</source>
        <translation>ブートローダーのステータス</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>書き込み済み</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>パケット</translation>
    </message>
    <message>
        <source>%1 sent, of these %2 again</source>
        <translation>%1 個送信、うち再送 %2 個</translation>
    </message>
    <message>
        <source>Time for writing</source>
        <translation>書き込み時間</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Time for reading back</source>
        <translation>読み戻し時間</translation>
    </message>
</context>
<context>
    <name>WaveChart</name>
    <message>
        <source>No new samples</source>
        <translation>新しいサンプルがありません</translation>
    </message>
    <message>
        <source>Low-pass filter</source>
        <translation>ローパスフィルター</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
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
    <name>WaveTrigger</name>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Catching</source>
        <translation>捕捉中</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>ホールド中</translation>
    </message>
</context>
<context>
    <name>WaveViewState</name>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
</context>
<context>
    <name>chart_text</name>
    <message>
        <source>%1 Hz · last %2 s of %3 s</source>
        <translation>%1 Hz · 直近 %2 s / 全 %3 s</translation>
    </message>
    <message>
        <source>%1 Hz · %2 s to %3 s of %4 s</source>
        <translation>%1 Hz · %2～%3 s / 全 %4 s</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>欠落</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation>欠落 %1</translation>
    </message>
    <message>
        <source>The store ends here: %1 s</source>
        <translation>保持データの終端: %1 s</translation>
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
        <source>Qt %1 (licence: GNU LGPL 3; Qt Quick 3D: GNU GPL 3)</source>
        <translation>Qt %1 (ライセンス: GNU LGPL 3、Qt Quick 3D: GNU GPL 3)</translation>
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
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>&amp;Link health</source>
        <translation>通信品質(&amp;L)</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Numbers and traces</source>
        <translation>数値と波形</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>記録を開始(&amp;S)</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Set &amp;marker</source>
        <translation>マーカーを設定(&amp;M)</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>Marks this moment in a file beside the recording</source>
        <translation>記録に付随するファイルに、この時点のマーカーを書き込みます</translation>
    </message>
    <message>
        <source>No hardware at hand? The simulator behaves like a device.</source>
        <translation>実機がない場合は、シミュレーターを使用できます。デバイスと同じように動作します。</translation>
    </message>
    <message>
        <source>Try without a device</source>
        <translation>デバイスなしで試す</translation>
    </message>
    <message>
        <source>Start &amp;capture</source>
        <translation>キャプチャを開始(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+F9</source>
        <translation>Ctrl+F9</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>新しいウィンドウ(&amp;N)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>Opens another window for another device</source>
        <translation>別のデバイス用にウィンドウを開きます</translation>
    </message>
    <message>
        <source>Open &amp;file...</source>
        <translation>ファイルを開く(&amp;F)...</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
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
        <source>%1 is not there at the moment. Plug the device in, or choose another port.</source>
        <translation>現在 %1 は見つかりません。デバイスを接続するか、別のポートを選択してください。</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 はシリアルポートではありません。</translation>
    </message>
    <message>
        <source>Plug the device in: it will appear here.

To try the program without a device, type demo: below. A device on another computer has an address there, such as tcp://192.168.1.20:4001.</source>
        <translation>デバイスを接続すると、ここに表示されます。

デバイスなしで試すには、下に demo: と入力してください。別のコンピューターに接続されたデバイスは、tcp://192.168.1.20:4001 のようなアドレスで開けます。</translation>
    </message>
    <message>
        <source>&amp;Port or address</source>
        <translation>ポートまたはアドレス(&amp;P)</translation>
    </message>
    <message>
        <source>A port, or tcp://host:port, rfc2217://host:port, udp://host:port</source>
        <translation>ポート、または tcp://host:port、rfc2217://host:port、udp://host:port</translation>
    </message>
    <message>
        <source>A port of the list, or typed by hand: the path of a port, or an address such as tcp://host:port, rfc2217://host:port?baud=115200, udp://host:port, file:path or demo:</source>
        <translation>一覧のポート、または直接入力したポートのパスやアドレス（tcp://host:port、rfc2217://host:port?baud=115200、udp://host:port、file:path、demo: など）</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>ファイル(&amp;F)...</translation>
    </message>
    <message>
        <source>Play a capture or a recording</source>
        <translation>キャプチャまたは記録を再生します</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>最近の項目(&amp;R)</translation>
    </message>
    <message>
        <source>Sources opened last</source>
        <translation>最近開いたソース</translation>
    </message>
    <message>
        <source>The sources that were opened last</source>
        <translation>最近開いたソースの一覧</translation>
    </message>
    <message>
        <source>Reco&amp;nnect</source>
        <translation>自動的に再接続(&amp;N)</translation>
    </message>
    <message>
        <source>Choose a port, or type its path or an address.</source>
        <translation>ポートを選択するか、パスまたはアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Opens the same device again when it was lost and is back</source>
        <translation>接続が切れたデバイスが復帰すると、もう一度開きます</translation>
    </message>
    <message>
        <source>Not for this source: another device could not be told from it. An adapter with a serial number, a path in /dev/serial/by-id or an address on the network can be.</source>
        <translation>このソースでは、別のデバイスに替わっても区別できないため、使用できません。シリアル番号のあるアダプター、/dev/serial/by-id のパス、ネットワーク上のアドレスであれば使用できます。</translation>
    </message>
    <message>
        <source>Open Capture or Recording</source>
        <translation>キャプチャまたは記録を開く</translation>
    </message>
    <message>
        <source>Captures and recordings (*.mcap *.csv);;All files (*)</source>
        <translation>キャプチャと記録 (*.mcap *.csv);;すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>form_fftchart</name>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Value (mG)</source>
        <translation>振幅 (mG)</translation>
    </message>
    <message>
        <source>Angular Velocity</source>
        <translation>角速度</translation>
    </message>
    <message>
        <source>Value (deg/s)</source>
        <translation>振幅 (deg/s)</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>リアルタイム</translation>
    </message>
    <message>
        <source>Max Hold</source>
        <translation>最大ホールド</translation>
    </message>
    <message>
        <source>Avg Hold</source>
        <translation>平均ホールド</translation>
    </message>
    <message>
        <source>FFT Analysis</source>
        <translation>FFT 解析</translation>
    </message>
    <message>
        <source>Sample points:</source>
        <translation>サンプル点数:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>窓関数:</translation>
    </message>
    <message>
        <source>Hold:</source>
        <translation>ホールド:</translation>
    </message>
    <message>
        <source>Amplitude Max:</source>
        <translation>振幅上限:</translation>
    </message>
    <message>
        <source>Switch between acceleration and angular velocity spectra.</source>
        <translation>加速度と角速度のスペクトルを切り替えます。</translation>
    </message>
    <message>
        <source>Choose how many time-domain samples are included in each FFT calculation.</source>
        <translation>1 回の FFT 計算に使用する時間領域のサンプル数を選択します。</translation>
    </message>
    <message>
        <source>Select the window function applied before the FFT.</source>
        <translation>FFT の前に適用する窓関数を選択します。</translation>
    </message>
    <message>
        <source>Choose whether the spectrum is live, max-hold, or averaged across frames.</source>
        <translation>スペクトルの表示方法（リアルタイム、最大ホールド、フレーム平均）を選択します。</translation>
    </message>
    <message>
        <source>Set the visible FFT amplitude ceiling. Acceleration can be adjusted up to 32000 mG and angular velocity up to 4000 deg/s.</source>
        <translation>表示する FFT 振幅の上限を設定します。加速度は 32000 mG、角速度は 4000 deg/s まで設定できます。</translation>
    </message>
    <message>
        <source>Shows the current sample rate and the RMSE of the resultant time-domain signal.</source>
        <translation>現在のサンプリング周波数と、合成した時間領域信号の RMSE を表示します。</translation>
    </message>
    <message>
        <source>Start or pause FFT updates.</source>
        <translation>FFT の更新を開始または一時停止します。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Sample Frequency:%1Hz, RMSE of Norm:%2</source>
        <translation>サンプリング周波数: %1 Hz、合成 RMSE: %2</translation>
    </message>
    <message>
        <source>FFT %1</source>
        <translation>%1の FFT</translation>
    </message>
    <message>
        <source>Hover to inspect frequency and amplitude. Mouse wheel zooms Y, Ctrl + wheel zooms X, left drag pans, and right or middle double-click resets the view.</source>
        <translation>マウスポインターを合わせると周波数と振幅を確認できます。ホイールで Y 軸、Ctrl + ホイールで X 軸を拡大・縮小し、左ドラッグで移動、右または中ボタンのダブルクリックで表示範囲をリセットします。</translation>
    </message>
    <message>
        <source>Ignore the steady value</source>
        <translation>定常値を無視</translation>
    </message>
    <message>
        <source>Leaves 0 Hz, and what the window spreads of it into the bins beside it, out of peak and alarm. Otherwise gravity would be the highest peak of every acceleration spectrum.</source>
        <translation>0 Hz と、窓関数によって隣のビンに漏れた分を、ピークとアラームから除きます。除かないと、加速度スペクトルでは常に重力が最大のピークになります。</translation>
    </message>
</context>
<context>
    <name>form_link_health</name>
    <message>
        <source>Link health</source>
        <translation>通信品質</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>回線</translation>
    </message>
    <message>
        <source>Bytes received</source>
        <translation>受信バイト数</translation>
    </message>
    <message>
        <source>All bytes of this connection</source>
        <translation>この接続で受信した全バイト</translation>
    </message>
    <message>
        <source>Data packets</source>
        <translation>データパケット</translation>
    </message>
    <message>
        <source>Packets whose checksum fits; their samples are shown and recorded</source>
        <translation>チェックサムが正しいパケット。そのサンプルは表示・記録されます</translation>
    </message>
    <message>
        <source>Bootloader packets</source>
        <translation>ブートローダーのパケット</translation>
    </message>
    <message>
        <source>Answers of the bootloader during a firmware update</source>
        <translation>ファームウェア更新中のブートローダーの応答</translation>
    </message>
    <message>
        <source>Checksum errors</source>
        <translation>チェックサムエラー</translation>
    </message>
    <message>
        <source>Packets that were damaged on the line and rejected</source>
        <translation>回線上で壊れて破棄されたパケット</translation>
    </message>
    <message>
        <source>Over-long lengths</source>
        <translation>長さの超過</translation>
    </message>
    <message>
        <source>Headers that claim more bytes than a packet can have</source>
        <translation>パケットの上限を超える長さを示すヘッダー</translation>
    </message>
    <message>
        <source>Unknown packet types</source>
        <translation>不明なパケット種別</translation>
    </message>
    <message>
        <source>Start bytes that no known packet type follows</source>
        <translation>既知のパケット種別が続かない開始バイト</translation>
    </message>
    <message>
        <source>Bytes outside packets</source>
        <translation>パケット外のバイト</translation>
    </message>
    <message>
        <source>of these, noise</source>
        <translation>うちノイズ</translation>
    </message>
    <message>
        <source>Bytes outside packets that cannot be text</source>
        <translation>パケット外のバイトのうちテキストではないもの</translation>
    </message>
    <message>
        <source>Bytes before the first packet</source>
        <translation>最初のパケットより前のバイト</translation>
    </message>
    <message>
        <source>A port is mostly opened in the middle of a packet: no sign of a fault</source>
        <translation>ポートは通常パケットの途中で開かれるため、異常ではありません</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>最後のエラー</translation>
    </message>
    <message>
        <source>Time of the last error</source>
        <translation>最後のエラーの時刻</translation>
    </message>
    <message>
        <source>The computer&apos;s clock</source>
        <translation>コンピューターの時刻</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>ストリーム</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>Samples of all nodes</source>
        <translation>全ノードのサンプル</translation>
    </message>
    <message>
        <source>Missing samples</source>
        <translation>欠落サンプル</translation>
    </message>
    <message>
        <source>By the time stamps of the samples, for all nodes; a dash when they have none</source>
        <translation>全ノードのサンプルのタイムスタンプから算出。タイムスタンプがない場合はダッシュ</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>欠落率</translation>
    </message>
    <message>
        <source>Share of missing samples among all that the device sent</source>
        <translation>デバイスが送信した全サンプルに占める欠落の割合</translation>
    </message>
    <message>
        <source>Largest gap</source>
        <translation>最大の途切れ</translation>
    </message>
    <message>
        <source>Longest time between two samples with others missing between them, by the device&apos;s clock</source>
        <translation>間に欠落のある 2 サンプル間の最長時間（デバイスの時計による）</translation>
    </message>
    <message>
        <source>Last gap</source>
        <translation>最後の途切れ</translation>
    </message>
    <message>
        <source>The computer&apos;s clock at the end of the last gap</source>
        <translation>最後の途切れが終わったときのコンピューターの時刻</translation>
    </message>
    <message>
        <source>Clock jumps</source>
        <translation>時計の飛び</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Records dropped</source>
        <translation>破棄したレコード</translation>
    </message>
    <message>
        <source>The disk was too slow for them</source>
        <translation>ディスクの書き込みが追いつきませんでした</translation>
    </message>
    <message>
        <source>Records not written</source>
        <translation>書き込めなかったレコード</translation>
    </message>
    <message>
        <source>The file could not be written</source>
        <translation>ファイルに書き込めませんでした</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>Figures of each node</source>
        <translation>各ノードの値</translation>
    </message>
    <message>
        <source>Nothing has been connected yet. Open a serial port to see how completely its data arrive.</source>
        <translation>まだ何も接続されていません。シリアルポートを開くと、データの受信状況を確認できます。</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>checksum</source>
        <translation>チェックサム</translation>
    </message>
    <message>
        <source>over-long length</source>
        <translation>長さの超過</translation>
    </message>
    <message>
        <source>unknown packet type</source>
        <translation>不明なパケット種別</translation>
    </message>
    <message>
        <source>noise</source>
        <translation>ノイズ</translation>
    </message>
    <message>
        <source>Copy all figures to the clipboard</source>
        <translation>すべての値をクリップボードにコピーします</translation>
    </message>
    <message>
        <source>There is nothing to copy yet</source>
        <translation>コピーできる値がまだありません</translation>
    </message>
    <message>
        <source>Connected: %1, %2 baud</source>
        <translation>接続済み: %1、%2 baud</translation>
    </message>
    <message>
        <source>Closed: %1, %2 baud. Figures of the last connection.</source>
        <translation>切断済み: %1、%2 baud。前回の接続の値です。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>欠落</translation>
    </message>
    <message>
        <source>Text that the device answers to commands, and the remains of damaged packets</source>
        <translation>コマンドへのデバイスの応答テキストと、壊れたパケットの残り</translation>
    </message>
    <message>
        <source>The latest damage on the line</source>
        <translation>回線上で最後に起きた異常</translation>
    </message>
    <message>
        <source>The device restarted or its time was set; what was lost in between is not known</source>
        <translation>デバイスの再起動または時刻の再設定。その間の欠落数は分かりません</translation>
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
    <message>
        <source>Writing the last records…</source>
        <translation>最後のレコードを書き込み中…</translation>
    </message>
    <message>
        <source>%1, enough for less than 1 min</source>
        <translation>%1（記録可能時間 1 分未満）</translation>
    </message>
    <message>
        <source>The last recording is still being written. Try again when that has ended.</source>
        <translation>前回の記録をまだ書き込んでいます。終わってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>開始しています…</translation>
    </message>
    <message>
        <source>Stop &amp;after</source>
        <translation>時間で停止(&amp;A)</translation>
    </message>
    <message>
        <source>Longest time in minutes</source>
        <translation>最長時間（分）</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分</translation>
    </message>
    <message>
        <source>Stop a&amp;t</source>
        <translation>サイズで停止(&amp;T)</translation>
    </message>
    <message>
        <source>Largest size of all files in MiB</source>
        <translation>全ファイルの合計サイズの上限（MiB）</translation>
    </message>
    <message>
        <source>When the connection was lost, recording goes on in a new file as soon as the port is open again</source>
        <translation>接続が切れた場合、ポートがもう一度開くと、新しいファイルで記録を続けます</translation>
    </message>
    <message>
        <source>Waiting for the connection to come back</source>
        <translation>再接続を待っています</translation>
    </message>
    <message>
        <source>Recording ended: the time is up</source>
        <translation>設定時間に達したため、記録を終了しました</translation>
    </message>
    <message>
        <source>Recording ended: the size is reached</source>
        <translation>設定サイズに達したため、記録を終了しました</translation>
    </message>
    <message>
        <source>Open the port again to go on.</source>
        <translation>続けるには、ポートをもう一度開いてください。</translation>
    </message>
    <message>
        <source>A file holds 16 nodes. Not recorded: %1</source>
        <translation>1 つのファイルに記録できるのは 16 ノードまでです。記録されないノード: %1</translation>
    </message>
    <message>
        <source>A file beside the recording cannot be written: %1</source>
        <translation>記録に付随するファイルに書き込めません: %1</translation>
    </message>
    <message>
        <source>Continue after the cable was unplu&amp;gged</source>
        <translation>ケーブルが抜けた後も記録を続ける(&amp;G)</translation>
    </message>
    <message>
        <source>Not connected. Open a serial port first.</source>
        <translation>未接続です。先にシリアルポートを開いてください。</translation>
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
        <source>The device refused at least one of %1.</source>
        <translation>デバイスが次のうち少なくとも 1 つを受け付けませんでした：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The device does not answer, although its data arrive. Identify it again.</source>
        <translation>データは届いていますが、デバイスが応答しません。もう一度識別してください。</translation>
    </message>
    <message>
        <source>The answer was damaged on the line. Identify the device again.</source>
        <translation>応答が回線上で壊れました。デバイスをもう一度識別してください。</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>それでも保存</translation>
    </message>
    <message>
        <source>The device is not sending text. The baud rate may be wrong.</source>
        <translation>デバイスから届くのはテキストではありません。ボーレートが違う可能性があります。</translation>
    </message>
    <message>
        <source>%1 Hz needs %2 % of the line&apos;s capacity at %3 baud: samples will be lost.</source>
        <translation>%1 Hz の出力には %3 baud の回線容量の %2 % が必要なため、サンプルが失われます。</translation>
    </message>
</context>
<context>
    <name>form_threed</name>
    <message>
        <source>3D view</source>
        <translation>3D ビュー</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>姿勢</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>基準姿勢</translation>
    </message>
    <message>
        <source>Set &amp;home</source>
        <translation>基準を設定(&amp;H)</translation>
    </message>
    <message>
        <source>Take the live pose as the reference</source>
        <translation>現在の姿勢を基準にします</translation>
    </message>
    <message>
        <source>&amp;Clear home</source>
        <translation>基準を解除(&amp;C)</translation>
    </message>
    <message>
        <source>Forget the reference</source>
        <translation>設定した基準姿勢を破棄します</translation>
    </message>
    <message>
        <source>Mounting</source>
        <translation>取付</translation>
    </message>
    <message>
        <source>How the axes of the device lie in the body</source>
        <translation>機体に対するデバイスの軸の向きです</translation>
    </message>
    <message>
        <source>RFU / ENU 312 (Z-X-Y)</source>
        <translation>RFU / ENU 312 (Z-X-Y)</translation>
    </message>
    <message>
        <source>FLU / NWU / ZYX Intrinsic (Z-Y-X)</source>
        <translation>FLU / NWU / ZYX 内因性 (Z-Y-X)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Jet</source>
        <translation>ジェット機</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>立方体</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>飛行機</translation>
    </message>
    <message>
        <source>Spaceship</source>
        <translation>宇宙船</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>読み込み(&amp;L)…</translation>
    </message>
    <message>
        <source>Show a model from a file: X forward, Y up, Z to the right</source>
        <translation>ファイルのモデルを表示します（X: 前、Y: 上、Z: 右）</translation>
    </message>
    <message>
        <source>&amp;Reset view</source>
        <translation>視点をリセット(&amp;R)</translation>
    </message>
    <message>
        <source>Put the camera back (Home key in the picture, or double-click)</source>
        <translation>カメラを初期位置に戻します（3D 画面で Home キーまたはダブルクリック）</translation>
    </message>
    <message>
        <source>The 3D picture needs OpenGL, which is not available here. The numbers are complete.</source>
        <translation>3D 表示に必要な OpenGL を利用できません。数値はすべて表示されます。</translation>
    </message>
    <message>
        <source>The 3D picture cannot be drawn here. The numbers are complete.</source>
        <translation>3D 画像を描画できません。数値はすべて表示されます。</translation>
    </message>
    <message>
        <source>Current preset: RFU body / ENU navigation, Euler 312 intrinsic (Z-X-Y).</source>
        <translation>現在のプリセット: RFU 機体座標系 / ENU 航法座標系、オイラー角 312 内因性 (Z-X-Y)。</translation>
    </message>
    <message>
        <source>Current preset: FLU body or NWU body, Euler ZYX intrinsic (Z-Y-X).</source>
        <translation>現在のプリセット: FLU または NWU 機体座標系、オイラー角 ZYX 内因性 (Z-Y-X)。</translation>
    </message>
    <message>
        <source>Current preset: Unknown.</source>
        <translation>現在のプリセット: 不明。</translation>
    </message>
    <message>
        <source>Capture the current live pose as Home to compare mounting bias and installation offsets.</source>
        <translation>現在の姿勢を基準として記録すると、取り付けの傾きやずれを比較できます。</translation>
    </message>
    <message>
        <source>Home pose captured. Delta shows the live attitude relative to the stored home reference.</source>
        <translation>基準姿勢を記録しました。「基準との差」は、記録した基準に対する現在の姿勢です。</translation>
    </message>
    <message>
        <source>Waiting for live attitude data to capture home pose.</source>
        <translation>基準姿勢を記録するため、姿勢データを待っています。</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>姿勢データなし</translation>
    </message>
    <message>
        <source>From quaternion</source>
        <translation>クォータニオンから算出</translation>
    </message>
    <message>
        <source>From Euler angles</source>
        <translation>オイラー角から算出</translation>
    </message>
    <message>
        <source>Open 3D asset</source>
        <translation>3D モデルを開く</translation>
    </message>
    <message>
        <source>3D Assets (*.obj *.mesh)</source>
        <translation>3D モデル (*.obj *.mesh)</translation>
    </message>
    <message>
        <source>The 3D picture could not be loaded. See the log for the reason.</source>
        <translation>3D 画像を読み込めませんでした。原因はログを確認してください。</translation>
    </message>
</context>
<context>
    <name>form_updater</name>
    <message>
        <source>Firmware Update</source>
        <translation>ファームウェア更新</translation>
    </message>
    <message>
        <source>Image file</source>
        <translation>イメージファイル</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Copies what is shown above together with the log, for a report</source>
        <translation>上に表示されている内容をログとともにコピーします（報告用）</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>The port was closed: connect again before the download.</source>
        <translation>ポートが閉じられました。書き込む前に、もう一度接続してください。</translation>
    </message>
    <message>
        <source>Please select image
</source>
        <translation>イメージを選択してください
</translation>
    </message>
    <message>
        <source>PATH: %1
</source>
        <translation>パス: %1
</translation>
    </message>
    <message>
        <source>Text Files(*.hex)</source>
        <translation>HEX ファイル (*.hex)</translation>
    </message>
    <message>
        <source>FILE:%1
</source>
        <translation>ファイル: %1
</translation>
    </message>
    <message>
        <source>No file selected
</source>
        <translation>ファイルが選択されていません
</translation>
    </message>
    <message>
        <source>Failed to open file
</source>
        <translation>ファイルを開けませんでした
</translation>
    </message>
    <message>
        <source>Failed to parse HEX file
</source>
        <translation>HEX ファイルを解析できませんでした
</translation>
    </message>
    <message>
        <source>SIZE:%1 bytes
</source>
        <translation>サイズ: %1 バイト
</translation>
    </message>
    <message>
        <source>SP:0x%1
</source>
        <translation>SP:0x%1
</translation>
    </message>
    <message>
        <source>PC:0x%1
</source>
        <translation>PC:0x%1
</translation>
    </message>
    <message>
        <source>ADDR:0x%1
</source>
        <translation>アドレス: 0x%1
</translation>
    </message>
    <message>
        <source>
--- Connecting to bootloader ---
</source>
        <translation>
--- ブートローダーに接続しています ---
</translation>
    </message>
    <message>
        <source>CONNECT ERR<byte value="xd"/>
</source>
        <translation>接続エラー<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Please check:
</source>
        <translation>次の点を確認してください:
</translation>
    </message>
    <message>
        <source>  - Device is powered on
</source>
        <translation>  - デバイスの電源が入っていること
</translation>
    </message>
    <message>
        <source>  - Serial port is correct
</source>
        <translation>  - シリアルポートが正しいこと
</translation>
    </message>
    <message>
        <source>  - Bootloader is installed
</source>
        <translation>  - ブートローダーが組み込まれていること
</translation>
    </message>
    <message>
        <source>Connect OK
</source>
        <translation>接続しました
</translation>
    </message>
    <message>
        <source>PKT SIZE:%1
</source>
        <translation>パケットサイズ: %1
</translation>
    </message>
    <message>
        <source>FLASH SIZE:%1KB
</source>
        <translation>フラッシュサイズ: %1 KB
</translation>
    </message>
    <message>
        <source>SDID:</source>
        <translation>SDID:</translation>
    </message>
    <message>
        <source>KBOOT:%1.%2.%3
</source>
        <translation>KBOOT:%1.%2.%3
</translation>
    </message>
    <message>
        <source>SECTOR:%1
</source>
        <translation>セクター: %1
</translation>
    </message>
    <message>
        <source>
Ready to download firmware.
</source>
        <translation>
ファームウェアの書き込み準備が完了しました。
</translation>
    </message>
    <message>
        <source>
--- Loading HEX file ---
</source>
        <translation>
--- HEX ファイルを読み込んでいます ---
</translation>
    </message>
    <message>
        <source>NO IMAGE<byte value="xd"/>
</source>
        <translation>イメージなし<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>
--- Starting download ---
</source>
        <translation>
--- 書き込みを開始します ---
</translation>
    </message>
    <message>
        <source>Download failed
</source>
        <translation>書き込みに失敗しました
</translation>
    </message>
    <message>
        <source>Not connected to bootloader<byte value="xd"/>
</source>
        <translation>ブートローダーに接続されていません<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Press Connect first: the device has to run its bootloader.</source>
        <translation>先に「接続」を押して、デバイスのブートローダーを起動してください。</translation>
    </message>
    <message>
        <source>Update complete, image running...
</source>
        <translation>更新が完了し、イメージを実行しています...
</translation>
    </message>
    <message>
        <source>A download is running.</source>
        <translation>書き込み中です。</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Chooses the image, an Intel HEX file</source>
        <translation>イメージ（Intel HEX ファイル）を選択します</translation>
    </message>
    <message>
        <source>Restarts the device into its bootloader</source>
        <translation>デバイスを再起動してブートローダーに入ります</translation>
    </message>
    <message>
        <source>Erases the device&apos;s firmware and writes the image</source>
        <translation>デバイスのファームウェアを消去し、イメージを書き込みます</translation>
    </message>
    <message>
        <source>Press Connect first.</source>
        <translation>先に「接続」を押してください。</translation>
    </message>
    <message>
        <source>Not connected. Connect restarts the device; this takes up to 4 s.</source>
        <translation>未接続です。接続するとデバイスが再起動します（最大 4 秒）。</translation>
    </message>
    <message>
        <source>Ready to download</source>
        <translation>書き込み準備完了</translation>
    </message>
    <message>
        <source>Waiting for the bootloader</source>
        <translation>ブートローダー接続待ち</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>デバイスとの接続が切れました。</translation>
    </message>
    <message>
        <source>The bootloader refused a packet.</source>
        <translation>ブートローダーがパケットを拒否しました。</translation>
    </message>
    <message>
        <source>The bootloader aborted the transfer.</source>
        <translation>ブートローダーが転送を中止しました。</translation>
    </message>
    <message>
        <source>The bootloader did not answer the erase command within 1.5 s.</source>
        <translation>ブートローダーが消去コマンドに 1.5 秒以内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The bootloader did not answer the write command within 1.5 s.</source>
        <translation>ブートローダーが書き込みコマンドに 1.5 秒以内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The bootloader did not acknowledge a packet.</source>
        <translation>ブートローダーからパケットの受信確認がありませんでした。</translation>
    </message>
    <message>
        <source>No bootloader answered.</source>
        <translation>ブートローダーが応答しませんでした。</translation>
    </message>
    <message>
        <source>The flash may be partly erased: the firmware may not start any more.</source>
        <translation>フラッシュの一部が消去され、ファームウェアが起動しなくなった可能性があります。</translation>
    </message>
    <message>
        <source>The flash is erased: the device has no firmware now.</source>
        <translation>フラッシュは消去済みで、現在デバイスにファームウェアがありません。</translation>
    </message>
    <message>
        <source>Nothing was written, but the flash may be erased: the firmware may not start any more.</source>
        <translation>何も書き込まれていませんが、フラッシュが消去され、ファームウェアが起動しなくなった可能性があります。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes were written: the firmware is incomplete and cannot start.</source>
        <translation>%2 バイト中 %1 バイトを書き込みました。ファームウェアは不完全で、起動できません。</translation>
    </message>
    <message>
        <source>Check the cable, open the port again and press Connect.</source>
        <translation>ケーブルを確認し、ポートを開き直してから「接続」を押してください。</translation>
    </message>
    <message>
        <source>Check power, port and baud rate, then press Connect again.</source>
        <translation>電源、ポート、ボーレートを確認して、もう一度「接続」を押してください。</translation>
    </message>
    <message>
        <source>It had reported status %1 before.</source>
        <translation>それ以前にステータス %1 を通知していました。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 / %2 バイト</translation>
    </message>
    <message>
        <source>%1 · %2 KB/s · %3 s left</source>
        <translation>%1 · %2 KB/s · 残り %3 秒</translation>
    </message>
    <message>
        <source>Bootloader %1, %2 KB of flash in sectors of %3 bytes, packets of up to %4 bytes, chip %5</source>
        <translation>ブートローダー %1、フラッシュ %2 KB（セクター %3 バイト）、パケット最大 %4 バイト、チップ %5</translation>
    </message>
    <message>
        <source>%1 bytes from %2, stack pointer %3, reset vector %4</source>
        <translation>%2 から %1 バイト、スタックポインター %3、リセットベクター %4</translation>
    </message>
    <message>
        <source>Restart device</source>
        <translation>デバイスを再起動</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>The device is still in its bootloader: it sends no data until it restarts.</source>
        <translation>デバイスはまだブートローダーの状態です。再起動するまでデータを送りません。</translation>
    </message>
    <message>
        <source>Stop the download</source>
        <translation>書き込みを停止</translation>
    </message>
    <message>
        <source>No bootloader is connected.</source>
        <translation>ブートローダーに接続していません。</translation>
    </message>
    <message>
        <source>The download is being stopped.</source>
        <translation>書き込みを停止しています。</translation>
    </message>
    <message>
        <source>Stops the download; asks first</source>
        <translation>書き込みを停止します（確認あり）</translation>
    </message>
    <message>
        <source>No download is running.</source>
        <translation>書き込みは行われていません。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>書き込みを停止しました。</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>レポートを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Copy &amp;log</source>
        <translation>ログをコピー(&amp;L)</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <translation>レポートを %1 に保存しました。</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2</source>
        <translation>レポートを %1 に保存できませんでした: %2</translation>
    </message>
    <message>
        <source>The serial port is being opened: press Connect again in a moment.</source>
        <translation>シリアルポートを開いています。少し待ってから、もう一度「接続」を押してください。</translation>
    </message>
    <message>
        <source>Nothing was erased and nothing was written: see the reasons above.</source>
        <translation>消去も書き込みも行われていません。上に表示されている理由を確認してください。</translation>
    </message>
    <message>
        <source>Restart the program</source>
        <translation>プログラムを再起動</translation>
    </message>
    <message>
        <source>Use packets of %1 bytes</source>
        <translation>%1 バイトのパケットを使用</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>レポートを保存</translation>
    </message>
    <message>
        <source>Text Files(*.txt)</source>
        <translation>テキストファイル (*.txt)</translation>
    </message>
    <message>
        <source>The bootloader is connected: press Download, or Restart device.</source>
        <translation>ブートローダーに接続済みです。「書き込み」または「デバイスを再起動」を押してください。</translation>
    </message>
    <message>
        <source>Download anyway</source>
        <translation>それでも書き込む</translation>
    </message>
    <message>
        <source>The download has to finish first: until then the device has no complete firmware.</source>
        <translation>先に書き込みを完了する必要があります。完了するまで、デバイスのファームウェアは不完全な状態です。</translation>
    </message>
    <message>
        <source>Leave as is</source>
        <translation>このままにする</translation>
    </message>
    <message>
        <source>The device restarts with its present firmware.</source>
        <translation>デバイスは現在のファームウェアで再起動します。</translation>
    </message>
    <message>
        <source>The bootloader did not confirm the restart. Unplug the device and plug it in again if no data arrive.</source>
        <translation>ブートローダーが再起動を確認しませんでした。データが届かない場合は、デバイスを抜いて差し直してください。</translation>
    </message>
    <message>
        <source>Stop the download? The device will have no complete firmware. Its bootloader remains: press Connect, then Download.</source>
        <translation>書き込みを停止しますか？デバイスのファームウェアは不完全な状態になります。ブートローダーは残るため、「接続」、「書き込み」の順に押せば、もう一度書き込めます。</translation>
    </message>
    <message>
        <source>Keep downloading</source>
        <translation>書き込みを続行</translation>
    </message>
    <message>
        <source>The image could not be loaded; the device is unchanged. Choose another file.</source>
        <translation>イメージを読み込めませんでした。デバイスは変更されていません。別のファイルを選択してください。</translation>
    </message>
    <message>
        <source>The file %1 no longer exists: choose another one.</source>
        <translation>ファイル %1 はもう存在しません。別のファイルを選択してください。</translation>
    </message>
    <message>
        <source>The file has changed since the interrupted update. Press Download to write it as it is now.</source>
        <translation>ファイルは、中断された更新の後に変更されています。現在の内容を書き込むには、「書き込み」を押してください。</translation>
    </message>
    <message>
        <source>Saves what was done and how it ended as text</source>
        <translation>実行した内容とその結果をテキストとして保存します</translation>
    </message>
    <message>
        <source>No update has run yet.</source>
        <translation>更新はまだ行われていません。</translation>
    </message>
    <message>
        <source>There are doubts about this image: tick &quot;%1&quot; to write it.</source>
        <translation>このイメージには疑わしい点があります。書き込むには「%1」にチェックを入れてください。</translation>
    </message>
    <message>
        <source>Leaves the bootloader: the device starts its present firmware</source>
        <translation>ブートローダーを終了し、デバイスの現在のファームウェアを起動します</translation>
    </message>
    <message>
        <source>The file has changed since it was loaded. Choose it again to load the new version.</source>
        <translation>ファイルは読み込み後に変更されています。新しい内容を読み込むには、もう一度選択してください。</translation>
    </message>
    <message>
        <source>Erase anyway</source>
        <translation>それでも消去</translation>
    </message>
    <message>
        <source>The serial port is closed or accepts no data.</source>
        <translation>シリアルポートが閉じているか、データを受け付けません。</translation>
    </message>
    <message>
        <source>The device answered, but not like a bootloader.</source>
        <translation>デバイスは応答しましたが、ブートローダーの応答ではありません。</translation>
    </message>
    <message>
        <source>Nothing was written: the device&apos;s firmware is unchanged.</source>
        <translation>何も書き込まれていません。デバイスのファームウェアは変更されていません。</translation>
    </message>
    <message>
        <source>The bootloader is still in the device: press Connect, then Download.</source>
        <translation>ブートローダーはデバイスに残っています。「接続」、「書き込み」の順に押してください。</translation>
    </message>
    <message>
        <source>The bootloader accepts no data: it reports packets of %1 bytes.</source>
        <translation>ブートローダーがデータを受け付けません。通知されたパケットサイズは %1 バイトです。</translation>
    </message>
    <message>
        <source>There is no file at this path: choose an image.</source>
        <translation>このパスにファイルがありません。イメージを選択してください。</translation>
    </message>
    <message>
        <source>Not a loadable Intel HEX file. See debug.log for the reason, or choose another file.</source>
        <translation>読み込める Intel HEX ファイルではありません。debug.log で原因を確認するか、別のファイルを選択してください。</translation>
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
    <name>session_text</name>
    <message>
        <source>The port is being opened.</source>
        <translation>ポートを開いています。</translation>
    </message>
    <message>
        <source>A command waits for the device&apos;s reply.</source>
        <translation>コマンドがデバイスの応答を待っています。</translation>
    </message>
    <message>
        <source>Data arrive: the baud rate is right.</source>
        <translation>データを受信中です。ボーレートは正しい値です。</translation>
    </message>
    <message>
        <source>The device runs its bootloader. Restart it in the firmware update window first.</source>
        <translation>デバイスはブートローダーを実行中です。先にファームウェア更新ウィンドウで再起動してください。</translation>
    </message>
    <message>
        <source>Press Connect first.</source>
        <translation>先に「接続」を押してください。</translation>
    </message>
    <message>
        <source>No download runs.</source>
        <translation>書き込みは行われていません。</translation>
    </message>
    <message>
        <source>The port is being closed.</source>
        <translation>ポートを閉じています。</translation>
    </message>
    <message>
        <source>The device runs its bootloader.
It sends no data until it restarts.</source>
        <translation>デバイスはブートローダーを実行中です。
再起動するまでデータを送りません。</translation>
    </message>
    <message>
        <source>Firmware is being written.
Do not unplug the device.</source>
        <translation>ファームウェアを書き込み中です。
デバイスを抜かないでください。</translation>
    </message>
    <message>
        <source>Trying %1 baud...</source>
        <translation>%1 ボーを試しています...</translation>
    </message>
    <message>
        <source>Not connected. Open a serial port first.</source>
        <translation>未接続です。先にシリアルポートを開いてください。</translation>
    </message>
    <message>
        <source>A firmware download is running and must finish first.</source>
        <translation>ファームウェアを書き込み中です。終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>The connection was lost. The device is waited for.</source>
        <translation>接続が切れました。デバイスを待っています。</translation>
    </message>
    <message>
        <source>Over UDP the device can only be listened to: commands may get lost or arrive in another order. Connect by tcp: or rfc2217: to send them.</source>
        <translation>UDP ではデバイスからの受信しかできません。コマンドは失われたり、順序が入れ替わったりする可能性があります。送信するには tcp: または rfc2217: で接続してください。</translation>
    </message>
    <message>
        <source>This is a recording: there is no device to send anything to.</source>
        <translation>記録を開いているため、送信先のデバイスがありません。</translation>
    </message>
    <message>
        <source>The baud rate of this source is not set from here. Connect by rfc2217: to set that of a serial server.</source>
        <translation>このソースのボーレートは、ここでは設定できません。シリアルサーバーのボーレートを設定するには、rfc2217: で接続してください。</translation>
    </message>
    <message>
        <source>The connection was lost.
Waiting for the device...</source>
        <translation>接続が切れました。
デバイスを待っています...</translation>
    </message>
    <message>
        <source>This is a file already: capturing it again would add nothing.</source>
        <translation>これはすでにファイルです。再度キャプチャする必要はありません。</translation>
    </message>
    <message>
        <source>The file is being opened.</source>
        <translation>ファイルを開いています。</translation>
    </message>
    <message>
        <source>Playing back %1
%2 packets/s</source>
        <translation>%1 を再生中
%2 パケット/秒</translation>
    </message>
</context>
<context>
    <name>source_address</name>
    <message>
        <source>&quot;?%1&quot; is not known here. Only the baud rate can follow, such as ?baud=%2.</source>
        <translation>「?%1」は使用できません。指定できるのは、?baud=%2 のようなボーレートだけです。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a baud rate. It is a whole number from %2 to %3.</source>
        <translation>「%1」はボーレートとして使用できません。%2～%3 の整数を入力してください。</translation>
    </message>
    <message>
        <source>The address of a network source looks like %1.</source>
        <translation>ネットワーク上のソースのアドレスは、%1 のように入力してください。</translation>
    </message>
    <message>
        <source>The bracket after the IPv6 address is missing, as in %1.</source>
        <translation>IPv6 アドレスの後の角かっこがありません（正しい例: %1）。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>「%1」は IPv6 アドレスではありません。</translation>
    </message>
    <message>
        <source>Only a colon and the port can follow the bracket, as in %1.</source>
        <translation>角かっこの後に入力できるのは、コロンとポートだけです（例: %1）。</translation>
    </message>
    <message>
        <source>An IPv6 address needs brackets, as in %1.</source>
        <translation>%1 のように、IPv6 アドレスを角かっこで囲んでください。</translation>
    </message>
    <message>
        <source>Add the host, as in %1.</source>
        <translation>%1 のように、ホストを入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name or address of a host.</source>
        <translation>「%1」はホストの名前でもアドレスでもありません。</translation>
    </message>
    <message>
        <source>Add the port, as in %1.</source>
        <translation>%1 のように、ポートを入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a port. It is a whole number from 1 to 65535.</source>
        <translation>「%1」はポートとして使用できません。1～65535 の整数を入力してください。</translation>
    </message>
    <message>
        <source>Add the port, as in serial:/dev/ttyUSB0.</source>
        <translation>serial:/dev/ttyUSB0 のように、ポートを入力してください。</translation>
    </message>
    <message>
        <source>Add the path of the file, as in file:recordings/walk.mcap.</source>
        <translation>file:recordings/walk.mcap のように、ファイルのパスを入力してください。</translation>
    </message>
    <message>
        <source>Nothing can follow &quot;demo:&quot;.</source>
        <translation>「demo:」の後には何も入力できません。</translation>
    </message>
    <message>
        <source>Choose a port, or type its path or an address.</source>
        <translation>ポートを選択するか、パスまたはアドレスを入力してください。</translation>
    </message>
    <message>
        <source>This text is longer than any address.</source>
        <translation>アドレスとしては長すぎます。</translation>
    </message>
    <message>
        <source>This text contains characters that no address has.</source>
        <translation>アドレスに使えない文字が含まれています。</translation>
    </message>
    <message>
        <source>&quot;%1:&quot; is not known here. Sources are serial:, tcp:, rfc2217:, udp:, file: and demo:.</source>
        <translation>「%1:」は使用できません。使用できるソースは serial:、tcp:、rfc2217:、udp:、file:、demo: です。</translation>
    </message>
</context>
<context>
    <name>source_error_text</name>
    <message>
        <source>Another program is connected to %1, and only one can be.</source>
        <translation>別のプログラムが %1 に接続しています。同時に接続できるのは 1 つだけです。</translation>
    </message>
    <message>
        <source>Close it there. If it is gone already, let the server drop old connections (ser2net: the option kickolduser).</source>
        <translation>そのプログラムの接続を閉じてください。すでに終了している場合は、古い接続を切断するようにサーバーを設定してください（ser2net: オプション kickolduser）。</translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation>%1 が接続を閉じました。</translation>
    </message>
    <message>
        <source>Another program may have connected to the same port, which ends this connection, or the server was stopped. Close the other program, or start the server, then open the source again.</source>
        <translation>別のプログラムが同じポートに接続してこの接続が終了したか、サーバーが停止した可能性があります。そのプログラムを終了するか、サーバーを起動してから、もう一度ソースを開いてください。</translation>
    </message>
    <message>
        <source>The serial port at %1 does not accept 8 data bits without parity. Check the settings of the server.</source>
        <translation>%1 のシリアルポートは、データビット 8、パリティなしの設定に対応していません。サーバーの設定を確認してください。</translation>
    </message>
    <message>
        <source>The serial port at %1 was set to %2 baud instead of %3. Choose a rate that it supports.</source>
        <translation>%1 のシリアルポートは、%3 baud ではなく %2 baud に設定されました。対応しているボーレートを選択してください。</translation>
    </message>
    <message>
        <source>There is no host with the name %1. Check its spelling, or enter its address instead.</source>
        <translation>%1 という名前のホストが見つかりません。つづりを確認するか、代わりにアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Nothing listens on port %1 of %2. Start the serial server there (such as ser2net), or check the port.</source>
        <translation>%2 のポート %1 で待ち受けているプログラムがありません。そこでシリアルサーバー（ser2net など）を起動するか、ポートを確認してください。</translation>
    </message>
    <message>
        <source>There is no way to %1 (%2). Check the network cable or Wi-Fi of both computers.</source>
        <translation>%1 に到達できません（%2）。両方のコンピューターのネットワークケーブルまたは Wi-Fi を確認してください。</translation>
    </message>
    <message>
        <source>%1 did not answer. Check that it is switched on, and that no firewall blocks port %2.</source>
        <translation>%1 から応答がありませんでした。電源が入っていることと、ファイアウォールがポート %2 をブロックしていないことを確認してください。</translation>
    </message>
    <message>
        <source>%1 closed the connection and gave the reason &quot;%2&quot;.</source>
        <translation>%1 が「%2」という理由で接続を閉じました。</translation>
    </message>
    <message>
        <source>Check the settings of the server and its serial port.</source>
        <translation>サーバーとそのシリアルポートの設定を確認してください。</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: it does not answer any more. Check the network, then open the source again.</source>
        <translation>%1 の応答がなくなり、接続が切れました。ネットワークを確認して、もう一度ソースを開いてください。</translation>
    </message>
    <message>
        <source>The simulator is not installed: there is no program &quot;%1&quot; beside this one. Install it, or connect a device.</source>
        <translation>シミュレーターがインストールされていません。このプログラムと同じ場所にプログラム「%1」がありません。インストールするか、デバイスを接続してください。</translation>
    </message>
    <message>
        <source>The simulator has ended.</source>
        <translation>シミュレーターが終了しました。</translation>
    </message>
    <message>
        <source>The simulator could not be started.</source>
        <translation>シミュレーターを起動できませんでした。</translation>
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
<context>
    <name>verdict_text</name>
    <message>
        <source>A packet of %1 bytes cannot be acknowledged within 0.2 s at %2 baud.</source>
        <translation>%2 baud では、%1 バイトのパケットの受信確認が 0.2 秒以内に間に合いません。</translation>
    </message>
    <message>
        <source>Packets of %1 bytes can.</source>
        <translation>%1 バイトのパケットなら間に合います。</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>イメージが空です。</translation>
    </message>
    <message>
        <source>The file begins at %1, but it would be written to %2, where the first file of this run began. Restart the program to write it to its own address.</source>
        <translation>ファイルの開始アドレスは %1 ですが、プログラムの起動後に最初に使用したファイルの開始アドレス %2 に書き込まれることになります。本来のアドレスに書き込むには、プログラムを再起動してください。</translation>
    </message>
    <message>
        <source>The image does not fit the %1 KB of flash from this address on.</source>
        <translation>このアドレスからでは、イメージが %1 KB のフラッシュに収まりません。</translation>
    </message>
    <message>
        <source>The image&apos;s build of %1 is older than the device&apos;s: %2.</source>
        <translation>イメージのビルド (%1) は、デバイスのビルド (%2) より古いものです。</translation>
    </message>
    <message>
        <source>Not verified: this bootloader cannot read the flash back.</source>
        <translation>未検証: このブートローダーはフラッシュを読み戻せません。</translation>
    </message>
    <message>
        <source>Not verified: the chip is locked against reading.</source>
        <translation>未検証: チップの読み出しがロックされています。</translation>
    </message>
    <message>
        <source>Not verified: the bootloader refused to read the flash back (status %1).</source>
        <translation>未検証: ブートローダーがフラッシュの読み戻しを拒否しました（ステータス %1）。</translation>
    </message>
    <message>
        <source>%1 packets were sent again after silence and may have been written twice: the firmware may be wrong even if it starts.</source>
        <translation>応答がなかったため %1 個のパケットを再送しました。二重に書き込まれた可能性があり、起動してもファームウェアが正しくない場合があります。</translation>
    </message>
    <message>
        <source>But the bootloader reported status %1.</source>
        <translation>ただし、ブートローダーがステータス %1 を通知しました。</translation>
    </message>
    <message>
        <source>But the bootloader did not confirm the whole image.</source>
        <translation>ただし、ブートローダーからイメージ全体の受信確認がありませんでした。</translation>
    </message>
    <message>
        <source>%1 bytes were written in %2 s, %3 of %4 packets were sent again.</source>
        <translation>%1 バイトを %2 秒で書き込みました（%4 パケット中 %3 パケットを再送）。</translation>
    </message>
    <message>
        <source>Reading the flash back found wrong bytes: %1, the first at %2.</source>
        <translation>フラッシュの読み戻しで、誤ったバイトが %1 個見つかりました（最初の位置: %2）。</translation>
    </message>
    <message>
        <source>The device was not restarted: this firmware must not run.</source>
        <translation>このファームウェアは実行すべきでないため、デバイスを再起動していません。</translation>
    </message>
    <message>
        <source>Reading the flash back was stopped.</source>
        <translation>フラッシュの読み戻しを停止しました。</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>デバイスとの接続が切れました。</translation>
    </message>
    <message>
        <source>Check the cable, open the port again and press Connect.</source>
        <translation>ケーブルを確認し、ポートを開き直してから「接続」を押してください。</translation>
    </message>
    <message>
        <source>Connecting to the bootloader…</source>
        <translation>ブートローダーに接続中…</translation>
    </message>
    <message>
        <source>Checking the image…</source>
        <translation>イメージを確認中…</translation>
    </message>
    <message>
        <source>Erasing the flash…</source>
        <translation>フラッシュを消去中…</translation>
    </message>
    <message>
        <source>Writing the image…</source>
        <translation>イメージを書き込み中…</translation>
    </message>
    <message>
        <source>Reading the flash back…</source>
        <translation>フラッシュを読み戻しています…</translation>
    </message>
    <message>
        <source>Restarting the device…</source>
        <translation>デバイスを再起動中…</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>デバイスを待っています…</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>検証済み</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>未検証</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>疑わしい</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Same build</source>
        <translation>同じビルド</translation>
    </message>
    <message>
        <source>Did not come back</source>
        <translation>復帰せず</translation>
    </message>
    <message>
        <source>The device is back with its new firmware.</source>
        <translation>デバイスは新しいファームウェアで復帰しました。</translation>
    </message>
    <message>
        <source>The device is back. If it does not work as it should, press Connect and download again.</source>
        <translation>デバイスは復帰しました。正常に動作しない場合は、「接続」を押して、もう一度書き込んでください。</translation>
    </message>
    <message>
        <source>Press Connect and download again, at a higher baud rate if there is one.</source>
        <translation>「接続」を押して、もう一度書き込んでください。可能であれば、より高いボーレートを使用してください。</translation>
    </message>
    <message>
        <source>Unplug it and plug it in again, and open its port: the new firmware may use another baud rate. If its bootloader answers there, this window opens by itself.</source>
        <translation>デバイスを抜いて差し直し、ポートを開いてください。新しいファームウェアではボーレートが異なる可能性があります。そこでブートローダーが応答した場合は、このウィンドウが自動的に開きます。</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Before: %1 · Now: %2</source>
        <translation>以前: %1 · 現在: %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 baud or more is also fast enough.</source>
        <translation>%1 baud 以上でも間に合います。</translation>
    </message>
    <message>
        <source>The bootloader accepts no data: it reports packets of %1 bytes.</source>
        <translation>ブートローダーがデータを受け付けません。通知されたパケットサイズは %1 バイトです。</translation>
    </message>
    <message>
        <source>An earlier erase of this size took this chip more than 1.5 s, and the protocol waits no longer: it would be erased and not written.</source>
        <translation>このチップでは以前、このサイズの消去に 1.5 秒を超える時間がかかりました。プロトコルはそれ以上待たないため、消去されるだけで書き込まれません。</translation>
    </message>
    <message>
        <source>The file has no end record: part of it may be missing.</source>
        <translation>ファイルに終了レコードがありません。一部が欠けている可能性があります。</translation>
    </message>
    <message>
        <source>Data after a blank line, where the image ends, would not be written.</source>
        <translation>イメージは空行で終わるため、空行より後のデータは書き込まれません。</translation>
    </message>
    <message>
        <source>Data after a start address or an unknown record, where the image ends, would not be written.</source>
        <translation>イメージは開始アドレスまたは不明なレコードで終わるため、それより後のデータは書き込まれません。</translation>
    </message>
    <message>
        <source>Data after the end record would not be written.</source>
        <translation>終了レコードより後のデータは書き込まれません。</translation>
    </message>
    <message>
        <source>The image does not begin at the start of a sector (%1 bytes): what precedes it in the sector is erased too.</source>
        <translation>イメージの先頭がセクター（%1 バイト）の先頭にありません。同じセクター内でイメージより前にある内容も消去されます。</translation>
    </message>
    <message>
        <source>The previous update was for %1, this one is for %2.</source>
        <translation>前回の更新はアドレス %1、今回はアドレス %2 が対象です。</translation>
    </message>
    <message>
        <source>The stack pointer is not a word address in RAM.</source>
        <translation>スタックポインターが RAM 内のワードアドレスではありません。</translation>
    </message>
    <message>
        <source>The reset vector is not a Thumb address inside the image.</source>
        <translation>リセットベクターがイメージ内の Thumb アドレスではありません。</translation>
    </message>
    <message>
        <source>The image is very small for firmware.</source>
        <translation>ファームウェアとしてはイメージが非常に小さいです。</translation>
    </message>
    <message>
        <source>Not verified: reading the flash back did not finish.</source>
        <translation>未検証: フラッシュの読み戻しが完了しませんでした。</translation>
    </message>
    <message>
        <source>The flash was read back and matches the image.</source>
        <translation>フラッシュを読み戻し、イメージと一致することを確認しました。</translation>
    </message>
    <message>
        <source>The bootloader is still in the device: press Connect, then Download.</source>
        <translation>ブートローダーはデバイスに残っています。「接続」、「書き込み」の順に押してください。</translation>
    </message>
    <message>
        <source>The image was written, but not verified.</source>
        <translation>イメージは書き込まれましたが、検証されていません。</translation>
    </message>
    <message>
        <source>The folder is not writable: after a crash there would have been no reminder.</source>
        <translation>フォルダーに書き込めません。プログラムが異常終了しても、この更新についての通知は表示されないところでした。</translation>
    </message>
    <message>
        <source>But the device came back with its previous build.</source>
        <translation>ただし、デバイスは以前のビルドで復帰しました。</translation>
    </message>
    <message>
        <source>Check that this is the right file.</source>
        <translation>正しいファイルであることを確認してください。</translation>
    </message>
    <message>
        <source>Check that this is the right file, then press Connect and download again.</source>
        <translation>正しいファイルであることを確認してから、「接続」を押して、もう一度書き込んでください。</translation>
    </message>
    <message>
        <source>But the device has not identified itself since its restart.</source>
        <translation>ただし、再起動後にデバイスの識別情報が届いていません。</translation>
    </message>
    <message>
        <source>The update of %1 with %2, started %3, was written completely but not verified.</source>
        <translation>%3 に開始した %1 の更新（%2）は最後まで書き込まれましたが、検証されていません。</translation>
    </message>
    <message>
        <source>The update of %1 with %2, started %3, was interrupted at %4 of %5 bytes.</source>
        <translation>%3 に開始した %1 の更新（%2）は、%5 バイト中 %4 バイトの時点で中断されました。</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
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
        <translation>依此預設集判斷頻譜</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>自訂…</translation>
    </message>
    <message>
        <source>Set thresholds and frequencies yourself</source>
        <translation>自行設定門檻與頻率</translation>
    </message>
</context>
<context>
    <name>AlarmRuleEditor</name>
    <message>
        <source>From</source>
        <translation>頻率下限</translation>
    </message>
    <message>
        <source>To (0: no limit)</source>
        <translation>頻率上限（0：不限）</translation>
    </message>
    <message>
        <source>Watch from</source>
        <translation>注意門檻</translation>
    </message>
    <message>
        <source>Alarm from</source>
        <translation>警報門檻</translation>
    </message>
    <message>
        <source>Spectra to raise</source>
        <translation>觸發所需訊框數</translation>
    </message>
    <message>
        <source>Spectra to clear</source>
        <translation>解除所需訊框數</translation>
    </message>
    <message>
        <source>Use this rule</source>
        <translation>使用此規則</translation>
    </message>
</context>
<context>
    <name>AppearanceMenu</name>
    <message>
        <source>&amp;System</source>
        <translation>跟隨系統(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>淺色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外觀(&amp;A)</translation>
    </message>
</context>
<context>
    <name>AttitudeCard</name>
    <message>
        <source>Attitude</source>
        <translation>姿態</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>橫滾</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>俯仰</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>偏航</translation>
    </message>
</context>
<context>
    <name>AttitudeFigures</name>
    <message>
        <source>Live</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>橫滾</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>俯仰</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>偏航</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>四元數</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>相對基準</translation>
    </message>
</context>
<context>
    <name>BandEditor</name>
    <message>
        <source>Name of the band</source>
        <translation>頻帶名稱</translation>
    </message>
    <message>
        <source>Lower edge</source>
        <translation>頻帶下限</translation>
    </message>
    <message>
        <source>Upper edge</source>
        <translation>頻帶上限</translation>
    </message>
    <message>
        <source>Measure this band</source>
        <translation>量測此頻帶</translation>
    </message>
</context>
<context>
    <name>BandPanel</name>
    <message>
        <source>Peak and bands</source>
        <translation>峰值與頻帶</translation>
    </message>
    <message>
        <source>Back to the automatic bands</source>
        <translation>恢復自動頻帶</translation>
    </message>
    <message>
        <source>Add band…</source>
        <translation>新增頻帶…</translation>
    </message>
    <message>
        <source>Measure the power of a band of your own</source>
        <translation>量測自訂頻帶的功率</translation>
    </message>
    <message>
        <source>Peak: %1 Hz on %2, %3 %4</source>
        <translation>主峰：%1 Hz（%2），%3 %4</translation>
    </message>
    <message>
        <source>%1, %2–%3 Hz</source>
        <translation>%1，%2–%3 Hz</translation>
    </message>
    <message>
        <source>Coherence of the axes</source>
        <translation>軸間相干性</translation>
    </message>
    <message>
        <source>How alike the spectra of two axes are in shape, from 0 to 1</source>
        <translation>兩軸頻譜形狀的相似程度，範圍 0 到 1</translation>
    </message>
</context>
<context>
    <name>BodyModel</name>
    <message>
        <source>The model cannot be shown.</source>
        <translation>無法顯示此模型。</translation>
    </message>
</context>
<context>
    <name>CaptureActions</name>
    <message>
        <source>Stop &amp;capture</source>
        <translation>停止擷取(&amp;C)</translation>
    </message>
    <message>
        <source>Start &amp;capture</source>
        <translation>開始擷取(&amp;C)</translation>
    </message>
    <message>
        <source>Captures every byte, sample and event into one file</source>
        <translation>將每個位元組、取樣與事件擷取至一個檔案</translation>
    </message>
    <message>
        <source>Capturing</source>
        <translation>擷取中</translation>
    </message>
    <message>
        <source>Captured into %1</source>
        <translation>已擷取至 %1</translation>
    </message>
</context>
<context>
    <name>CaptureBadge</name>
    <message>
        <source>Capture %1</source>
        <translation>擷取中 %1</translation>
    </message>
    <message>
        <source>Capture: problem</source>
        <translation>擷取發生問題</translation>
    </message>
</context>
<context>
    <name>CaptureFault</name>
    <message>
        <source>The capture %1 cannot be opened: %2</source>
        <translation>無法開啟擷取檔案 %1：%2</translation>
    </message>
    <message>
        <source>%1 is not a capture: it does not begin like an MCAP file.</source>
        <translation>%1 不是擷取檔案：其開頭不符合 MCAP 檔案格式。</translation>
    </message>
    <message>
        <source>Nothing in the capture %1 can be read: it is empty or damaged.</source>
        <translation>擷取檔案 %1 中沒有可讀取的內容：檔案是空的或已損毀。</translation>
    </message>
    <message>
        <source>%1 holds no received bytes that could be played back. Another program may have written it.</source>
        <translation>%1 中沒有可播放的接收位元組。此檔案可能由其他程式寫入。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be created: %2</source>
        <translation>無法建立擷取檔案 %1：%2</translation>
    </message>
    <message>
        <source>The capture %1 has ended: %2. What was written before is complete.</source>
        <translation>擷取 %1 已結束：%2。先前寫入的內容完整。</translation>
    </message>
    <message>
        <source>The capture %1 has ended: the file was deleted or moved.</source>
        <translation>擷取 %1 已結束：檔案已被刪除或移動。</translation>
    </message>
    <message>
        <source>The capture %1 is being written at this moment.</source>
        <translation>擷取檔案 %1 目前正在寫入。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be repaired: its folder is read-only. It has not been changed.</source>
        <translation>無法修復擷取檔案 %1：其資料夾為唯讀。檔案未變更。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be repaired: %2. It has not been changed.</source>
        <translation>無法修復擷取檔案 %1：%2。檔案未變更。</translation>
    </message>
</context>
<context>
    <name>CaptureRun</name>
    <message>
        <source>the folder cannot be created</source>
        <translation>無法建立資料夾</translation>
    </message>
</context>
<context>
    <name>CeilingField</name>
    <message>
        <source>now %1</source>
        <translation>目前 %1</translation>
    </message>
</context>
<context>
    <name>ChartBarTools</name>
    <message>
        <source>Save charts</source>
        <translation>儲存圖表</translation>
    </message>
    <message>
        <source>List of markers; M sets one</source>
        <translation>標記清單；按 M 鍵新增標記</translation>
    </message>
    <message>
        <source>Let each chart have its own time axis and cursors</source>
        <translation>各圖表使用獨立的時間軸與游標</translation>
    </message>
    <message>
        <source>Couple time axes and cursors of all charts</source>
        <translation>連動所有圖表的時間軸與游標</translation>
    </message>
</context>
<context>
    <name>ChartFilterRow</name>
    <message>
        <source>Low-pass filter</source>
        <translation>低通濾波</translation>
    </message>
    <message>
        <source>Cutoff frequency</source>
        <translation>截止頻率</translation>
    </message>
    <message>
        <source>In force: %1 Hz, as the rate is now %2 Hz</source>
        <translation>實際生效：%1 Hz，因目前速率為 %2 Hz</translation>
    </message>
    <message>
        <source>Apply %1 Hz</source>
        <translation>套用 %1 Hz</translation>
    </message>
</context>
<context>
    <name>ChartLegendEntry</name>
    <message>
        <source>Hide %1</source>
        <translation>隱藏 %1</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>顯示 %1</translation>
    </message>
</context>
<context>
    <name>ChartMeasures</name>
    <message>
        <source>Between A and B, %1 to %2</source>
        <translation>A 與 B 之間，%1 至 %2</translation>
    </message>
    <message>
        <source>Over the view, %1 to %2</source>
        <translation>可見區間，%1 至 %2</translation>
    </message>
</context>
<context>
    <name>ChartRangeRow</name>
    <message>
        <source>Left end of the horizontal axis</source>
        <translation>橫軸左端</translation>
    </message>
    <message>
        <source>Right end of the horizontal axis</source>
        <translation>橫軸右端</translation>
    </message>
    <message>
        <source>Lower end of the value axis</source>
        <translation>數值軸下限</translation>
    </message>
    <message>
        <source>Upper end of the value axis</source>
        <translation>數值軸上限</translation>
    </message>
    <message>
        <source>Automatic values</source>
        <translation>數值軸自動</translation>
    </message>
    <message>
        <source>Fit the value axis to what is visible</source>
        <translation>使數值軸配合可見資料</translation>
    </message>
</context>
<context>
    <name>ChartSaver</name>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗號分隔值檔案 (*.csv)</translation>
    </message>
    <message>
        <source>The picture could not be taken.</source>
        <translation>無法擷取圖片。</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>儲存圖表圖片</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG 圖片 (*.png)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已儲存 %1</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>Save the samples</source>
        <translation>儲存取樣資料</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG 圖片 (*.svg)</translation>
    </message>
    <message>
        <source>Save the samples of all charts</source>
        <translation>儲存所有圖表的取樣資料</translation>
    </message>
    <message>
        <source>Save pictures of all charts</source>
        <translation>儲存所有圖表的圖片</translation>
    </message>
    <message>
        <source>No chart has samples.</source>
        <translation>所有圖表都沒有取樣資料。</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n file(s) in %1</source>
        <translation>
            <numerusform>已將 %n 個檔案儲存至 %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandSession</name>
    <message>
        <source>(no reply)</source>
        <translation>（無回應）</translation>
    </message>
    <message>
        <source>(noise)</source>
        <translation>（雜訊）</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Opens this port at one rate after the other until the device answers</source>
        <translation>依序以各鮑率開啟此序列埠，直到裝置回應</translation>
    </message>
    <message>
        <source>Try the &amp;usual baud rates</source>
        <translation>嘗試常用鮑率(&amp;U)</translation>
    </message>
    <message>
        <source>Only noise is arriving. The baud rate may be wrong.</source>
        <translation>僅收到雜訊。鮑率可能有誤。</translation>
    </message>
</context>
<context>
    <name>DashboardWindow</name>
    <message>
        <source>This window could not be loaded. See the log for the reason.</source>
        <translation>無法載入此視窗。原因請見日誌。</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Device</source>
        <translation>裝置</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>產品</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型號</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>組建</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>&amp;Mounting</source>
        <translation>安裝(&amp;M)</translation>
    </message>
    <message>
        <source>How the device is mounted; remembered for each product</source>
        <translation>裝置的安裝方向，依產品分別記住</translation>
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
        <translation>無法開啟序列埠。</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍後</translation>
    </message>
    <message>
        <source>The device may be waiting in its bootloader for the rest. Plug it in, then connect to it.</source>
        <translation>裝置可能正在啟動載入程式中等待其餘資料。請接上裝置，然後連線。</translation>
    </message>
    <message>
        <source>Connection error.</source>
        <translation>連線錯誤。</translation>
    </message>
</context>
<context>
    <name>FFTChartView</name>
    <message>
        <source>Waiting for samples</source>
        <translation>正在等待取樣資料</translation>
    </message>
    <message>
        <source>No spectrum yet</source>
        <translation>尚無頻譜</translation>
    </message>
    <message>
        <source>Press Start above.</source>
        <translation>請按一下上方的「開始」。</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>資料品質</translation>
    </message>
    <message>
        <source>The selected node is not sending any at the moment.</source>
        <translation>所選節點目前沒有傳送取樣資料。</translation>
    </message>
</context>
<context>
    <name>FftAlarm</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Industrial</source>
        <translation>工業</translation>
    </message>
    <message>
        <source>Human</source>
        <translation>人體</translation>
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
        <translation>請用游標 A/B 檢視主峰。</translation>
    </message>
    <message>
        <source>Use cursor A/B to compare the dominant peak with nearby harmonics and band changes.</source>
        <translation>請用游標 A/B 將主峰與鄰近諧波及頻帶變化進行比較。</translation>
    </message>
    <message>
        <source>Low-frequency drift zone</source>
        <translation>低頻漂移區</translation>
    </message>
    <message>
        <source>Primary motion zone</source>
        <translation>主要運動區</translation>
    </message>
    <message>
        <source>Vibration zone</source>
        <translation>振動區</translation>
    </message>
    <message>
        <source>High-frequency impact zone</source>
        <translation>高頻衝擊區</translation>
    </message>
    <message>
        <source>Structural / looseness zone</source>
        <translation>結構/鬆動區</translation>
    </message>
    <message>
        <source>Check mounting bolts, frame looseness, and base stiffness.</source>
        <translation>請檢查安裝螺栓、機架鬆動情形與基座剛性。</translation>
    </message>
    <message>
        <source>Rotating equipment zone</source>
        <translation>旋轉設備區</translation>
    </message>
    <message>
        <source>Compare with shaft speed and inspect imbalance, misalignment, or coupling issues.</source>
        <translation>請與軸轉速比較，檢查是否有不平衡、不對中或聯軸器問題。</translation>
    </message>
    <message>
        <source>Bearing / gear zone</source>
        <translation>軸承/齒輪區</translation>
    </message>
    <message>
        <source>Inspect bearings, gears, and resonance paths around the measured axis.</source>
        <translation>請檢查量測軸附近的軸承、齒輪與共振傳遞路徑。</translation>
    </message>
    <message>
        <source>Impact / resonance zone</source>
        <translation>衝擊/共振區</translation>
    </message>
    <message>
        <source>Check for repeated impacts, chatter, looseness, or hard contact.</source>
        <translation>請檢查是否有反覆衝擊、顫振、鬆動或硬接觸。</translation>
    </message>
    <message>
        <source>Posture / sway zone</source>
        <translation>姿勢/晃動區</translation>
    </message>
    <message>
        <source>Review posture, balance, and slow body sway over a longer window.</source>
        <translation>請在較長的時間窗內觀察姿勢、平衡與身體的緩慢晃動。</translation>
    </message>
    <message>
        <source>Gait / repetition zone</source>
        <translation>步態/重複動作區</translation>
    </message>
    <message>
        <source>Compare cadence, stride rhythm, and left/right symmetry.</source>
        <translation>請比較步頻、步伐節奏與左右對稱性。</translation>
    </message>
    <message>
        <source>Tremor / shake zone</source>
        <translation>震顫/抖動區</translation>
    </message>
    <message>
        <source>Observe sustained tremor-like motion and compare different postures or limbs.</source>
        <translation>請觀察持續的類震顫動作，並比較不同姿勢或肢體。</translation>
    </message>
    <message>
        <source>Impact / abrupt motion zone</source>
        <translation>衝擊/突發動作區</translation>
    </message>
    <message>
        <source>Mark abrupt movement, foot strike, or collision-like events and review the raw waveform.</source>
        <translation>請標記突發動作、足部著地或類似碰撞的事件，並檢視原始波形。</translation>
    </message>
    <message>
        <source>General zone</source>
        <translation>一般區</translation>
    </message>
    <message>
        <source>No dominant FFT peak is available yet, so the alarm cannot classify the current motion or vibration.</source>
        <translation>尚無 FFT 主峰，警報功能無法對目前的運動或振動進行分類。</translation>
    </message>
    <message>
        <source>Start or resume FFT updates and wait for a stable peak before acting on the alarm.</source>
        <translation>請啟動或恢復 FFT 更新，待出現穩定的峰值後再處理警報。</translation>
    </message>
    <message>
        <source>%1 monitoring: waiting for data</source>
        <translation>%1監測：正在等待資料</translation>
    </message>
    <message>
        <source>%1 monitoring: no dominant peak yet.</source>
        <translation>%1監測：尚無主峰。</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is below the watch level.</source>
        <translation>%1監測：%2 低於注意門檻。</translation>
    </message>
    <message>
        <source>%1 watch: %2 is approaching the alarm threshold.</source>
        <translation>%1注意：%2 正接近警報門檻。</translation>
    </message>
    <message>
        <source>%1 alarm: %2 persisted above threshold.</source>
        <translation>%1警報：%2 持續高於門檻。</translation>
    </message>
    <message>
        <source>%1 monitoring: dominant peak outside target band</source>
        <translation>%1監測：主峰在目標頻帶之外</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is outside the target band.</source>
        <translation>%1監測：%2 在目標頻帶之外。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is outside the monitored band %2, so this preset stays idle.</source>
        <translation>主峰 %1 在監測頻帶 %2 之外，此預設集維持待命。</translation>
    </message>
    <message>
        <source>If this frequency matters for your use case, switch presets or set a custom alarm rule.</source>
        <translation>如果此頻率對您的應用很重要，請切換預設集或設定自訂警報規則。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and remains below the watch threshold.</source>
        <translation>主峰 %1 位於%2，仍低於注意門檻。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and is approaching the alarm threshold.</source>
        <translation>主峰 %1 位於%2，正接近警報門檻。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and stayed above the alarm threshold long enough to be treated as a persistent event.</source>
        <translation>主峰 %1 位於%2，高於警報門檻的時間已夠長，判定為持續事件。</translation>
    </message>
    <message>
        <source>Resultant</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>%1 Hz on %2 (amp %3)</source>
        <translation>%2 · %1 Hz (振幅 %3)</translation>
    </message>
    <message>
        <source>Band %1 | Watch &gt;= %2 | Alarm &gt;= %3 | %4 frame(s)</source>
        <translation>頻帶 %1 | 注意 &gt;= %2 | 警報 &gt;= %3 | %4 個訊框</translation>
    </message>
    <message>
        <source>%1-%2 Hz</source>
        <translation>%1-%2 Hz</translation>
    </message>
    <message>
        <source>%1 Hz and above</source>
        <translation>%1 Hz 以上</translation>
    </message>
    <message>
        <source>All frequencies</source>
        <translation>所有頻率</translation>
    </message>
</context>
<context>
    <name>FftBand</name>
    <message>
        <source>Low</source>
        <translation>低頻</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>中頻</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高頻</translation>
    </message>
</context>
<context>
    <name>FftChartBridge</name>
    <message>
        <source>The band needs a name.</source>
        <translation>請輸入頻帶名稱。</translation>
    </message>
    <message>
        <source>The upper edge must be above the lower one.</source>
        <translation>頻帶上限必須高於下限。</translation>
    </message>
    <message>
        <source>There are %1 bands already.</source>
        <translation>頻帶已達 %1 個。</translation>
    </message>
    <message>
        <source>Custom rule</source>
        <translation>自訂規則</translation>
    </message>
    <message>
        <source>The upper frequency must be above the lower one, or 0 for no limit.</source>
        <translation>頻率上限必須高於下限；0 表示無上限。</translation>
    </message>
    <message>
        <source>The alarm threshold must not be below the watch threshold, and both must be above 0.</source>
        <translation>警報門檻不得低於注意門檻，且兩者均須大於 0。</translation>
    </message>
    <message>
        <source>The frequencies are out of range.</source>
        <translation>頻率超出範圍。</translation>
    </message>
    <message>
        <source>Raised at %1 Hz, amplitude %2</source>
        <translation>觸發於 %1 Hz，振幅 %2</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>已解除</translation>
    </message>
    <message>
        <source>up</source>
        <translation>上升</translation>
    </message>
    <message>
        <source>steady</source>
        <translation>平穩</translation>
    </message>
    <message>
        <source>Coherence disabled</source>
        <translation>相干性分析已停用</translation>
    </message>
    <message>
        <source>Latency %1ms avg / %2ms max | Dropped %3 | Clipping %4 | Confidence %5</source>
        <translation>延遲 平均 %1ms / 最大 %2ms | 捨棄 %3 | 削波 %4 | 信賴度 %5</translation>
    </message>
</context>
<context>
    <name>FftFiles</name>
    <message>
        <source>Save a snapshot</source>
        <translation>儲存快照</translation>
    </message>
    <message>
        <source>Spectrum snapshot (*.json)</source>
        <translation>頻譜快照 (*.json)</translation>
    </message>
    <message>
        <source>Save the spectra</source>
        <translation>儲存頻譜</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗號分隔值檔案 (*.csv)</translation>
    </message>
    <message>
        <source>Open a snapshot</source>
        <translation>開啟快照</translation>
    </message>
    <message>
        <source>%1 points, %2 Hz, window %3</source>
        <translation>%1 點，%2 Hz，窗函數：%3</translation>
    </message>
    <message>
        <source>Bands: %1</source>
        <translation>頻帶：%1</translation>
    </message>
    <message>
        <source>Coherence: %1</source>
        <translation>相干性：%1</translation>
    </message>
    <message>
        <source>Alarm (%1): %2</source>
        <translation>警報（%1）：%2</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>設定：%1</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>與目前相同</translation>
    </message>
    <message>
        <source>other than now (%1)</source>
        <translation>與目前不同 (%1)</translation>
    </message>
    <message>
        <source>Format: %1</source>
        <translation>格式：%1</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>The file is no spectrum snapshot.</source>
        <translation>該檔案不是頻譜快照。</translation>
    </message>
    <message>
        <source>The file could not be read: %1</source>
        <translation>無法讀取檔案：%1</translation>
    </message>
</context>
<context>
    <name>FftWindow</name>
    <message>
        <source>Rectangular</source>
        <translation>矩形窗</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>漢寧窗</translation>
    </message>
    <message>
        <source>Hamming</source>
        <translation>漢明窗</translation>
    </message>
    <message>
        <source>Blackman</source>
        <translation>布萊克曼窗</translation>
    </message>
    <message>
        <source>Flat Top</source>
        <translation>平頂窗</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Open a capture or a recording</source>
        <translation>開啟擷取或記錄</translation>
    </message>
    <message>
        <source>Captures and recordings (*.mcap *.csv)</source>
        <translation>擷取和記錄 (*.mcap *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
</context>
<context>
    <name>GatewayDashboard</name>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空白鍵</translation>
    </message>
    <message>
        <source>Hide these charts</source>
        <translation>隱藏這些圖表</translation>
    </message>
    <message>
        <source>Show these charts of the chosen nodes</source>
        <translation>顯示所選節點的這些圖表</translation>
    </message>
    <message>
        <source>%1 · %2 Hz</source>
        <translation>%1 · %2 Hz</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>尚未選擇圖表</translation>
    </message>
    <message>
        <source>No node is chosen</source>
        <translation>尚未選擇節點</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>請在上方選擇要顯示的內容。</translation>
    </message>
    <message>
        <source>Click a node in the table to see its waveforms. Up to %1 nodes are shown together.</source>
        <translation>按一下表格中的節點即可檢視其波形，最多可同時顯示 %1 個節點。</translation>
    </message>
    <message>
        <source>Waiting for samples</source>
        <translation>正在等待取樣資料</translation>
    </message>
    <message>
        <source>Connect a wireless gateway; its nodes appear here.</source>
        <translation>請連接無線閘道器，其節點會顯示在這裡。</translation>
    </message>
    <message>
        <source>Freeze the charts; the table keeps updating</source>
        <translation>暫停圖表，表格持續更新</translation>
    </message>
    <message>
        <source>Continue with the newest samples</source>
        <translation>從最新資料繼續</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>疊加</translation>
    </message>
    <message>
        <source>Show each node in a chart of its own</source>
        <translation>每個節點單獨顯示在一個圖表中</translation>
    </message>
    <message>
        <source>Show one quantity of all chosen nodes in one plot</source>
        <translation>在一個圖表中顯示所有所選節點的同一物理量</translation>
    </message>
</context>
<context>
    <name>GatewayDashboardBridge</name>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>無線閘道器儀表板</translation>
    </message>
    <message>
        <source>Nodes %1 · late %2 · gone %3</source>
        <translation>節點 %1 · 延遲 %2 · 離線 %3</translation>
    </message>
    <message>
        <source>Node %1</source>
        <translation>節點 %1</translation>
    </message>
    <message>
        <source>Nodes %1 · connection ended</source>
        <translation>節點 %1 · 連線已結束</translation>
    </message>
</context>
<context>
    <name>GatewayNodeModel</name>
    <message>
        <source>Live</source>
        <translation>線上</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>延遲</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>離線</translation>
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
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>已結束</translation>
    </message>
</context>
<context>
    <name>GatewayNodeTable</name>
    <message>
        <source>Node</source>
        <translation>節點</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Rate
Hz</source>
        <translation>速率
Hz</translation>
    </message>
    <message>
        <source>Newest
ago</source>
        <translation>最新資料
距今</translation>
    </message>
    <message>
        <source>Missing
samples</source>
        <translation>遺失
取樣</translation>
    </message>
    <message>
        <source>Temp.
°C</source>
        <translation>溫度
°C</translation>
    </message>
    <message>
        <source>Pressure
Pa</source>
        <translation>氣壓
Pa</translation>
    </message>
    <message>
        <source>Node %1, %2</source>
        <translation>節點 %1，%2</translation>
    </message>
    <message>
        <source>%1 of %2 nodes chosen for charts</source>
        <translation>圖表已選 %1 / %2 個節點</translation>
    </message>
    <message>
        <source>Move the node and its charts up</source>
        <translation>上移節點及其圖表</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+↑</translation>
    </message>
    <message>
        <source>Move the node and its charts down</source>
        <translation>下移節點及其圖表</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+↓</translation>
    </message>
    <message>
        <source>%1 nodes are already shown. Remove one first.</source>
        <translation>已顯示 %1 個節點。請先移除一個。</translation>
    </message>
</context>
<context>
    <name>KvUartPort</name>
    <message>
        <source>This program cannot open files.</source>
        <translation>此程式無法開啟檔案。</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>The translation for %1 cannot be loaded. The language stays as it is.</source>
        <translation>無法載入「%1」的翻譯。介面語言維持不變。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Language of the interface</source>
        <translation>介面語言</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>Sensor Dashboard</source>
        <translation>感測器儀表板</translation>
    </message>
    <message>
        <source>Waveforms of the selected node</source>
        <translation>所選節點的波形</translation>
    </message>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>無線閘道器儀表板</translation>
    </message>
    <message>
        <source>All radio nodes of a connected wireless gateway</source>
        <translation>已連線無線閘道器的所有無線節點</translation>
    </message>
    <message>
        <source>Spectrum of the selected node, with alarms</source>
        <translation>所選節點的頻譜，附警報功能</translation>
    </message>
    <message>
        <source>Attitude of the selected node in three dimensions</source>
        <translation>所選節點的 3D 姿態</translation>
    </message>
    <message>
        <source>Record the stream to CSV files (%1)</source>
        <translation>將資料串流記錄至 CSV 檔案 (%1)</translation>
    </message>
    <message>
        <source>How completely the data arrive: errors, gaps, losses (%1)</source>
        <translation>資料接收的完整程度：錯誤、間隔、遺失 (%1)</translation>
    </message>
    <message>
        <source>Load new firmware into the device</source>
        <translation>將新韌體寫入裝置</translation>
    </message>
    <message>
        <source>Choose a serial port and connect (%1)</source>
        <translation>選擇序列埠並連線 (%1)</translation>
    </message>
    <message>
        <source>Close the serial port (%1)</source>
        <translation>關閉序列埠 (%1)</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>結束程式</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>閘道器</translation>
    </message>
    <message>
        <source>Plug in a module or a gateway, press &lt;b&gt;Open port&lt;/b&gt; (%1) and choose its serial port.</source>
        <translation>請接上模組或閘道器，按一下&lt;b&gt;開啟序列埠&lt;/b&gt; (%1)，然後選擇對應的序列埠。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written: settings and logs of this run are not kept.</source>
        <translation>資料夾 %1 無法寫入：本次執行的設定與日誌將不會保留。</translation>
    </message>
    <message>
        <source>&amp;Close file</source>
        <translation>關閉檔案(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>關閉序列埠(&amp;C)</translation>
    </message>
    <message>
        <source>Play back a capture or a CSV recording (%1)</source>
        <translation>播放擷取或 CSV 記錄 (%1)</translation>
    </message>
</context>
<context>
    <name>MarkerList</name>
    <message>
        <source>Marker %1</source>
        <translation>標記 %1</translation>
    </message>
</context>
<context>
    <name>MarkerPanel</name>
    <message>
        <source>Markers</source>
        <translation>標記</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>沒有標記</translation>
    </message>
    <message>
        <source>M sets one at the pointer, or at the newest sample.</source>
        <translation>按 M 鍵可在指標處或最新取樣處新增標記。</translation>
    </message>
    <message>
        <source>Show this place</source>
        <translation>顯示此位置</translation>
    </message>
    <message>
        <source>Text of the marker</source>
        <translation>標記文字</translation>
    </message>
    <message>
        <source>Remove this marker</source>
        <translation>移除此標記</translation>
    </message>
</context>
<context>
    <name>MeasurePanel</name>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copy the table for a spreadsheet</source>
        <translation>複製表格，可貼到試算表</translation>
    </message>
</context>
<context>
    <name>MeasureTable</name>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>標準差</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>均方根</translation>
    </message>
    <message>
        <source>Peak-peak</source>
        <translation>峰對峰值</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>點數</translation>
    </message>
</context>
<context>
    <name>MeshFile</name>
    <message>
        <source>The mesh file cannot be read: %1</source>
        <translation>無法讀取網格檔案：%1</translation>
    </message>
    <message>
        <source>The mesh file is larger than %1 MiB.</source>
        <translation>網格檔案超過 %1 MiB。</translation>
    </message>
    <message>
        <source>The mesh file is damaged, or of an unsupported kind.</source>
        <translation>網格檔案已損毀，或類型不受支援。</translation>
    </message>
</context>
<context>
    <name>MessageRow</name>
    <message>
        <source>Dismiss</source>
        <translation>關閉提示</translation>
    </message>
</context>
<context>
    <name>NodeCard</name>
    <message>
        <source>Nodes</source>
        <translation>節點</translation>
    </message>
    <message>
        <source>The node whose values are shown</source>
        <translation>選擇要顯示數值的節點</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>節點 ID: %1</translation>
    </message>
</context>
<context>
    <name>NodeOverlay</name>
    <message>
        <source>Node %1</source>
        <translation>節點 %1</translation>
    </message>
</context>
<context>
    <name>ObjReader</name>
    <message>
        <source>The OBJ file cannot be read: %1</source>
        <translation>無法讀取 OBJ 檔案：%1</translation>
    </message>
    <message>
        <source>The OBJ file is larger than %1 MiB.</source>
        <translation>OBJ 檔案超過 %1 MiB。</translation>
    </message>
    <message>
        <source>The file is not an OBJ model: it holds no text.</source>
        <translation>該檔案不是 OBJ 模型：其內容不是文字。</translation>
    </message>
    <message>
        <source>The file is not an OBJ model.</source>
        <translation>該檔案不是 OBJ 模型。</translation>
    </message>
    <message>
        <source>The OBJ model has more than %1 triangles.</source>
        <translation>OBJ 模型的三角形超過 %1 個。</translation>
    </message>
    <message>
        <source>The OBJ file is damaged: a face names a vertex that does not exist.</source>
        <translation>OBJ 檔案已損毀：有面參照了不存在的頂點。</translation>
    </message>
    <message>
        <source>The OBJ model has coordinates that are not finite or too large.</source>
        <translation>OBJ 模型含有非有限值或過大的座標。</translation>
    </message>
    <message>
        <source>The OBJ file holds no faces to show.</source>
        <translation>OBJ 檔案中沒有可顯示的面。</translation>
    </message>
    <message>
        <source>Line %1 of the OBJ file contains a coordinate that is not a number.</source>
        <translation>OBJ 檔案第 %1 行包含非數字的座標。</translation>
    </message>
</context>
<context>
    <name>OverlayChart</name>
    <message>
        <source>Show %1 of all chosen nodes</source>
        <translation>顯示所有所選節點的 %1</translation>
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
        <translation>PNG，尺寸放大為 %1 倍</translation>
    </message>
</context>
<context>
    <name>PlaybackBar</name>
    <message>
        <source>Unthrottled</source>
        <translation>不限速</translation>
    </message>
    <message>
        <source>Reconstructed from a CSV recording: fields that it does not hold are 0, and times are spread over each second.</source>
        <translation>由 CSV 記錄重建:其中沒有的欄位為 0,時間在每一秒內均勻分布。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>已到結尾</translation>
    </message>
    <message>
        <source>reached: %1</source>
        <translation>實際:%1</translation>
    </message>
    <message>
        <source>%1. This computer cannot keep up; nothing is left out.</source>
        <translation>%1。本機跟不上速度;不會捨棄任何資料。</translation>
    </message>
    <message>
        <source>Play the whole file</source>
        <translation>播放整個檔案</translation>
    </message>
    <message>
        <source>Play from</source>
        <translation>播放起點</translation>
    </message>
    <message>
        <source>Play to</source>
        <translation>播放終點</translation>
    </message>
    <message>
        <source>The end</source>
        <translation>結尾</translation>
    </message>
    <message>
        <source>The start</source>
        <translation>開頭</translation>
    </message>
    <message>
        <source>Here (%1)</source>
        <translation>目前位置 (%1)</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>播放或暫停 (空白鍵)</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步進</translation>
    </message>
    <message>
        <source>Play one packet</source>
        <translation>播放一個封包</translation>
    </message>
    <message>
        <source>How fast the file is played</source>
        <translation>檔案的播放速度</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速率</translation>
    </message>
    <message>
        <source>Position in the file</source>
        <translation>檔案中的位置</translation>
    </message>
    <message>
        <source>Position and length</source>
        <translation>位置和長度</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循環</translation>
    </message>
    <message>
        <source>Play again from the start when the end is reached</source>
        <translation>到達結尾後從頭再播放</translation>
    </message>
    <message>
        <source>Skip gaps</source>
        <translation>略過空隙</translation>
    </message>
    <message>
        <source>Skip times without data of more than 2 s</source>
        <translation>略過超過 2 秒無資料的時段</translation>
    </message>
    <message>
        <source>Part...</source>
        <translation>片段...</translation>
    </message>
    <message>
        <source>Play from marker to marker</source>
        <translation>在標記之間播放</translation>
    </message>
    <message>
        <source>Rate that is reached</source>
        <translation>實際達到的速度</translation>
    </message>
</context>
<context>
    <name>Qt6ModelAsset</name>
    <message>
        <source>No 3D asset was selected.</source>
        <translation>尚未選擇 3D 模型。</translation>
    </message>
    <message>
        <source>The selected mesh file could not be found.</source>
        <translation>找不到所選的網格檔案。</translation>
    </message>
    <message>
        <source>The selected OBJ file could not be found.</source>
        <translation>找不到所選的 OBJ 檔案。</translation>
    </message>
    <message>
        <source>Unsupported 3D asset. Choose a bundled .obj model, an external .obj file, or a preconverted .mesh file.</source>
        <translation>不支援此 3D 模型。請選擇內建的 .obj 模型、外部的 .obj 檔案或預先轉換的 .mesh 檔案。</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>The connection was lost for %1 s.</source>
        <translation>連線曾中斷 %1 秒。</translation>
    </message>
</context>
<context>
    <name>RecordingActions</name>
    <message>
        <source>Marker %1 at %2 s</source>
        <translation>標記 %1，位於 %2 s</translation>
    </message>
    <message>
        <source>Marker %1</source>
        <translation>標記 %1</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>Recording stopped: %1 records</source>
        <translation>記錄已停止：共 %1 筆</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>停止記錄(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>開始記錄(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what has arrived and closes the file</source>
        <translation>寫入已收到的資料並關閉檔案</translation>
    </message>
    <message>
        <source>Records with the last folder and name</source>
        <translation>使用上次的資料夾與名稱進行記錄</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>標記</translation>
    </message>
    <message>
        <source>Marker at %1 s</source>
        <translation>標記位於 %1 s</translation>
    </message>
    <message>
        <source>Markers go into recordings and captures: start one first</source>
        <translation>標記會寫入記錄或擷取檔案：請先開始記錄或擷取</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Recording %1</source>
        <translation>記錄中 %1</translation>
    </message>
    <message>
        <source>Recording: waiting</source>
        <translation>記錄等待中</translation>
    </message>
    <message>
        <source>Recording: problem</source>
        <translation>記錄發生問題</translation>
    </message>
</context>
<context>
    <name>RecordingReader</name>
    <message>
        <source>The recording %1 cannot be opened: %2</source>
        <translation>無法開啟記錄檔案 %1：%2</translation>
    </message>
    <message>
        <source>The recording %1 is empty.</source>
        <translation>記錄檔案 %1 是空的。</translation>
    </message>
    <message>
        <source>%1 is not a recording of this program: its columns are different.</source>
        <translation>%1 不是本程式的記錄檔案：欄位不一致。</translation>
    </message>
    <message>
        <source>The recording %1 holds no records.</source>
        <translation>記錄檔案 %1 中沒有任何記錄。</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Samples</source>
        <translation>取樣</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可見區間</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Save tables…</source>
        <translation>儲存表格…</translation>
    </message>
    <message>
        <source>A CSV file of each chart</source>
        <translation>每個圖表儲存為一個 CSV 檔案</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Save pictures…</source>
        <translation>儲存圖片…</translation>
    </message>
    <message>
        <source>A picture of each chart</source>
        <translation>每個圖表儲存為一張圖片</translation>
    </message>
    <message>
        <source>The buttons of each chart save only that chart, in the same way.</source>
        <translation>各圖表上的按鈕以相同方式僅儲存該圖表。</translation>
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
        <translation>暫停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Hold the picture; recordings go on</source>
        <translation>暫停畫面，記錄不受影響</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空白鍵</translation>
    </message>
    <message>
        <source>Hide this chart</source>
        <translation>隱藏此圖表</translation>
    </message>
    <message>
        <source>Show this chart</source>
        <translation>顯示此圖表</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>尚未選擇圖表</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>請在上方選擇要顯示的內容。</translation>
    </message>
    <message>
        <source>Continue with the newest samples</source>
        <translation>從最新資料繼續</translation>
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
        <translation>歐拉角</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>四元數</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>氣壓</translation>
    </message>
    <message>
        <source>Sensor Dashboard</source>
        <translation>感測器儀表板</translation>
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
        <translation>四元數</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>節點</translation>
    </message>
    <message>
        <source>Device time</source>
        <translation>裝置時間</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>溫度</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>氣壓</translation>
    </message>
</context>
<context>
    <name>SessionCapture</name>
    <message>
        <source>The disk is too slow. Not captured: %1 chunks or samples.</source>
        <translation>磁碟速度過慢。未擷取的資料塊或取樣：%1 個。</translation>
    </message>
</context>
<context>
    <name>SpectrumChart</name>
    <message>
        <source>%1 points · %2 Hz · %3 · %4 Hz per bin</source>
        <translation>%1 點 · %2 Hz · %3 · Δf %4 Hz</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Show amplitudes as they are</source>
        <translation>以線性刻度顯示振幅</translation>
    </message>
    <message>
        <source>Show amplitudes in decibels</source>
        <translation>以分貝顯示振幅</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Show amplitudes up to the set maximum</source>
        <translation>依設定的上限顯示振幅</translation>
    </message>
    <message>
        <source>Fit the amplitude axis to the curves beyond 0 Hz</source>
        <translation>使振幅軸配合 0 Hz 以外的曲線</translation>
    </message>
    <message>
        <source>Remove the cursors A and B</source>
        <translation>移除游標 A 和 B</translation>
    </message>
    <message>
        <source>Measure between the cursors A and B</source>
        <translation>在游標 A 和 B 之間量測</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>A, B</source>
        <translation>A、B</translation>
    </message>
    <message>
        <source>Reset the view</source>
        <translation>重設檢視</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>儲存圖表圖片</translation>
    </message>
    <message>
        <source>Save the spectra as a table</source>
        <translation>將頻譜儲存為表格</translation>
    </message>
    <message>
        <source>Save a snapshot of spectra and analysis</source>
        <translation>儲存頻譜與分析結果的快照</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開啟…</translation>
    </message>
    <message>
        <source>Level (dB, 0 dB = 1 %1)</source>
        <translation>位準 (dB，0 dB = 1 %1)</translation>
    </message>
    <message>
        <source>Block %1 %</source>
        <translation>資料塊 %1 %</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Limits of the axes, size of pictures</source>
        <translation>座標軸範圍、圖片尺寸</translation>
    </message>
    <message>
        <source>Show the contents of a saved snapshot</source>
        <translation>顯示已儲存快照的內容</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>圖片</translation>
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
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>Connected... %1, %2 baud</source>
        <translation>已連線：%1，鮑率 %2</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>節點 ID: %1</translation>
    </message>
    <message>
        <source>Unconnected...</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Playing back %1</source>
        <translation>正在播放 %1</translation>
    </message>
</context>
<context>
    <name>ThreeDScene</name>
    <message>
        <source>Drag to turn, right-drag to move, wheel to zoom, double-click to reset</source>
        <translation>拖曳旋轉，右鍵拖曳平移，滾輪縮放，按兩下重設</translation>
    </message>
</context>
<context>
    <name>TimeChart</name>
    <message>
        <source>Waiting for samples</source>
        <translation>正在等待取樣資料</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>Back to the newest samples</source>
        <translation>回到最新資料</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Span and limits of the axes</source>
        <translation>時間跨度與座標軸範圍</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Remove the measuring cursors</source>
        <translation>移除量測游標</translation>
    </message>
    <message>
        <source>Measure between two cursors</source>
        <translation>以兩個游標量測</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>A, B</source>
        <translation>A、B</translation>
    </message>
    <message>
        <source>Reset the view</source>
        <translation>重設檢視</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>儲存圖表圖片</translation>
    </message>
    <message>
        <source>Save the visible samples</source>
        <translation>儲存可見區間的取樣資料</translation>
    </message>
    <message>
        <source>Show all charts</source>
        <translation>顯示所有圖表</translation>
    </message>
    <message>
        <source>Show this chart alone</source>
        <translation>僅顯示此圖表</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Show %1 seconds</source>
        <translation>顯示 %1 秒</translation>
    </message>
    <message>
        <source>No new samples</source>
        <translation>沒有新的取樣資料</translation>
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
        <translation>姿態指示器</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>無姿態資料</translation>
    </message>
</context>
<context>
    <name>TriggerRow</name>
    <message>
        <source>Trigger</source>
        <translation>觸發</translation>
    </message>
    <message>
        <source>Watch %1</source>
        <translation>監視 %1</translation>
    </message>
    <message>
        <source>Rising through the level</source>
        <translation>上升穿過位準</translation>
    </message>
    <message>
        <source>Falling through the level</source>
        <translation>下降穿過位準</translation>
    </message>
    <message>
        <source>Crossing the level either way</source>
        <translation>任一方向穿過位準</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>區間</translation>
    </message>
    <message>
        <source>Leaving the band between two levels</source>
        <translation>超出兩個位準之間的區間</translation>
    </message>
    <message>
        <source>Other end of the band</source>
        <translation>區間的另一端</translation>
    </message>
    <message>
        <source>Share of the picture before the event</source>
        <translation>事件之前的部分占畫面的比例</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Run live while nothing happens</source>
        <translation>無事件時顯示即時資料</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Hold each event until the next</source>
        <translation>保持每個事件的畫面，直到下一個事件</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>單次</translation>
    </message>
    <message>
        <source>Hold the first event</source>
        <translation>保持第一個事件的畫面</translation>
    </message>
    <message>
        <source>Set a marker</source>
        <translation>新增標記</translation>
    </message>
    <message>
        <source>Mark each event that was caught</source>
        <translation>標記擷取到的每個事件</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>解除保持</translation>
    </message>
    <message>
        <source>Back to the live samples; wait for the next event</source>
        <translation>回到即時資料，等待下一個事件</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>Start a recording with the event, with the last folder and name</source>
        <translation>事件發生時開始記錄，使用上次的資料夾與名稱</translation>
    </message>
    <message>
        <source>Trigger level; drag its line to change it</source>
        <translation>觸發位準；拖曳位準線即可變更</translation>
    </message>
</context>
<context>
    <name>UpdateNoteCard</name>
    <message>
        <source>The device runs its bootloader and sends no data: restart it, or choose a firmware.</source>
        <translation>裝置處於啟動載入程式中，不傳送資料：請重新啟動裝置，或選擇韌體。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Choose firmware</source>
        <translation>選擇韌體</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>不再提醒</translation>
    </message>
    <message>
        <source>The device is waiting in its bootloader.</source>
        <translation>裝置正在啟動載入程式中等待。</translation>
    </message>
    <message>
        <source>Chooses the same file, connects and downloads it</source>
        <translation>選擇同一檔案，連線至裝置並燒錄</translation>
    </message>
    <message>
        <source>Removes the reminder of this update</source>
        <translation>移除此次更新的提醒</translation>
    </message>
</context>
<context>
    <name>UpdateReport</name>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>裝置</translation>
    </message>
    <message>
        <source>Chip</source>
        <translation>晶片</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>%1 at %2 baud</source>
        <translation>%1，%2 鮑</translation>
    </message>
    <message>
        <source>Old build</source>
        <translation>舊版本</translation>
    </message>
    <message>
        <source>New build</source>
        <translation>新版本</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 位元組</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>快閃記憶體</translation>
    </message>
    <message>
        <source>Status of the bootloader</source>
        <translation>啟動載入程式狀態</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>已寫入</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>封包</translation>
    </message>
    <message>
        <source>%1 sent, of these %2 again</source>
        <translation>已傳送 %1 個，其中重送 %2 個</translation>
    </message>
    <message>
        <source>Time for writing</source>
        <translation>寫入用時</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Time for reading back</source>
        <translation>回讀用時</translation>
    </message>
</context>
<context>
    <name>WaveChart</name>
    <message>
        <source>No new samples</source>
        <translation>沒有新的取樣資料</translation>
    </message>
    <message>
        <source>Low-pass filter</source>
        <translation>低通濾波</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>觸發</translation>
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
        <translation>歐拉角 (°)</translation>
    </message>
    <message>
        <source>Quaternion (Norm)</source>
        <translation>四元數 (正規化)</translation>
    </message>
    <message>
        <source>Pressure (Pa)</source>
        <translation>氣壓 (Pa)</translation>
    </message>
    <message>
        <source>The cutoff frequency must be above 0 Hz.</source>
        <translation>截止頻率必須大於 0 Hz。</translation>
    </message>
    <message>
        <source>The cutoff frequency is too low for %1 samples per second.</source>
        <translation>以每秒 %1 筆取樣而言，截止頻率過低。</translation>
    </message>
</context>
<context>
    <name>WaveTrigger</name>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待觸發</translation>
    </message>
    <message>
        <source>Catching</source>
        <translation>擷取中</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>已保持</translation>
    </message>
</context>
<context>
    <name>WaveViewState</name>
    <message>
        <source>Trigger</source>
        <translation>觸發</translation>
    </message>
</context>
<context>
    <name>chart_text</name>
    <message>
        <source>%1 Hz · last %2 s of %3 s</source>
        <translation>%1 Hz · 最近 %2 s / 共 %3 s</translation>
    </message>
    <message>
        <source>%1 Hz · %2 s to %3 s of %4 s</source>
        <translation>%1 Hz · %2 s 至 %3 s / 共 %4 s</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新啟動</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>中斷</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation>遺失 %1 筆</translation>
    </message>
    <message>
        <source>The store ends here: %1 s</source>
        <translation>資料僅保留至此處：%1 s</translation>
    </message>
</context>
<context>
    <name>form_about</name>
    <message>
        <source>About ORVEL-IMU</source>
        <translation>關於 ORVEL-IMU</translation>
    </message>
    <message>
        <source>KVCenter shows the data of inertial measurement units on a serial line and sets the units up.</source>
        <translation>KVCenter 可顯示序列埠慣性量測單元（IMU）的資料，並設定這些裝置。</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>開發框架</translation>
    </message>
    <message>
        <source>Settings and logs</source>
        <translation>設定與日誌</translation>
    </message>
    <message>
        <source>Folder of settings and logs</source>
        <translation>設定與日誌所在的資料夾</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Qt %1 (licence: GNU LGPL 3; Qt Quick 3D: GNU GPL 3)</source>
        <translation>Qt %1（授權：GNU LGPL 3；Qt Quick 3D：GNU GPL 3）</translation>
    </message>
</context>
<context>
    <name>form_base</name>
    <message>
        <source>No device connected</source>
        <translation>尚未連接裝置</translation>
    </message>
    <message>
        <source>Open port...</source>
        <translation>開啟序列埠...</translation>
    </message>
    <message>
        <source>&amp;Serial</source>
        <translation>序列埠(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>字型大小(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具列</translation>
    </message>
    <message>
        <source>&amp;Open port...</source>
        <translation>開啟序列埠(&amp;O)...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>關閉序列埠(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Spectrum</source>
        <translation>頻譜(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;3D view</source>
        <translation>3D 檢視(&amp;3)</translation>
    </message>
    <message>
        <source>&amp;Copy values</source>
        <translation>複製數值(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Copy all values of the selected node to the clipboard</source>
        <translation>將所選節點的所有數值複製到剪貼簿</translation>
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
        <translation>記錄(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Device settings...</source>
        <translation>裝置設定(&amp;D)...</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Identify and configure the device (Ctrl+E)</source>
        <translation>識別並設定裝置 (Ctrl+E)</translation>
    </message>
    <message>
        <source>&amp;Firmware update...</source>
        <translation>韌體更新(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>關於(&amp;A)</translation>
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
        <translation>連線品質(&amp;L)</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Numbers and traces</source>
        <translation>數值與曲線</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>開始記錄(&amp;S)</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Set &amp;marker</source>
        <translation>新增標記(&amp;M)</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>Marks this moment in a file beside the recording</source>
        <translation>在記錄的附屬檔案中標記此刻</translation>
    </message>
    <message>
        <source>No hardware at hand? The simulator behaves like a device.</source>
        <translation>手邊沒有硬體？模擬器的行為與裝置相同。</translation>
    </message>
    <message>
        <source>Try without a device</source>
        <translation>無裝置試用</translation>
    </message>
    <message>
        <source>Start &amp;capture</source>
        <translation>開始擷取(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+F9</source>
        <translation>Ctrl+F9</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>新增視窗(&amp;N)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>Opens another window for another device</source>
        <translation>為另一台裝置開啟新視窗</translation>
    </message>
    <message>
        <source>Open &amp;file...</source>
        <translation>開啟檔案(&amp;F)...</translation>
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
        <translation>開啟序列埠</translation>
    </message>
    <message>
        <source>&amp;Serial ports</source>
        <translation>序列埠(&amp;S)</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>序列埠</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>製造商</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序號</translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation>找不到序列埠</translation>
    </message>
    <message>
        <source>&amp;Baud rate</source>
        <translation>鮑率(&amp;B)</translation>
    </message>
    <message>
        <source>Bits per second, as set in the device</source>
        <translation>每秒位元數，須與裝置中的設定一致</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開啟(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 is not there at the moment. Plug the device in, or choose another port.</source>
        <translation>%1 目前不存在。請接上裝置，或選擇其他連接埠。</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 不是序列埠。</translation>
    </message>
    <message>
        <source>Plug the device in: it will appear here.

To try the program without a device, type demo: below. A device on another computer has an address there, such as tcp://192.168.1.20:4001.</source>
        <translation>接上裝置後，它會顯示在這裡。

若要在沒有裝置的情況下試用本程式，請在下方輸入「demo:」。其他電腦上的裝置透過位址存取，例如 tcp://192.168.1.20:4001。</translation>
    </message>
    <message>
        <source>&amp;Port or address</source>
        <translation>序列埠或位址(&amp;P)</translation>
    </message>
    <message>
        <source>A port, or tcp://host:port, rfc2217://host:port, udp://host:port</source>
        <translation>序列埠，或 tcp://host:port、rfc2217://host:port、udp://host:port</translation>
    </message>
    <message>
        <source>A port of the list, or typed by hand: the path of a port, or an address such as tcp://host:port, rfc2217://host:port?baud=115200, udp://host:port, file:path or demo:</source>
        <translation>從清單中選擇序列埠，或手動輸入：序列埠路徑，或位址，例如 tcp://host:port、rfc2217://host:port?baud=115200、udp://host:port、file:path 或 demo:</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>檔案(&amp;F)...</translation>
    </message>
    <message>
        <source>Play a capture or a recording</source>
        <translation>播放擷取或記錄檔案</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>最近使用(&amp;R)</translation>
    </message>
    <message>
        <source>Sources opened last</source>
        <translation>最近開啟的資料來源</translation>
    </message>
    <message>
        <source>The sources that were opened last</source>
        <translation>最近開啟過的資料來源</translation>
    </message>
    <message>
        <source>Reco&amp;nnect</source>
        <translation>自動重新連線(&amp;N)</translation>
    </message>
    <message>
        <source>Choose a port, or type its path or an address.</source>
        <translation>請選擇序列埠，或輸入序列埠路徑或位址。</translation>
    </message>
    <message>
        <source>Opens the same device again when it was lost and is back</source>
        <translation>裝置斷線並恢復後，重新開啟同一裝置</translation>
    </message>
    <message>
        <source>Not for this source: another device could not be told from it. An adapter with a serial number, a path in /dev/serial/by-id or an address on the network can be.</source>
        <translation>不適用於此資料來源：無法將其與其他裝置區分。有序號的轉接器、/dev/serial/by-id 中的路徑或網路位址則可以區分。</translation>
    </message>
    <message>
        <source>Open Capture or Recording</source>
        <translation>開啟擷取或記錄檔案</translation>
    </message>
    <message>
        <source>Captures and recordings (*.mcap *.csv);;All files (*)</source>
        <translation>擷取與記錄檔案 (*.mcap *.csv);;所有檔案 (*)</translation>
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
        <translation>即時</translation>
    </message>
    <message>
        <source>Max Hold</source>
        <translation>最大保持</translation>
    </message>
    <message>
        <source>Avg Hold</source>
        <translation>平均保持</translation>
    </message>
    <message>
        <source>FFT Analysis</source>
        <translation>FFT 分析</translation>
    </message>
    <message>
        <source>Sample points:</source>
        <translation>取樣點數：</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>窗函數：</translation>
    </message>
    <message>
        <source>Hold:</source>
        <translation>保持：</translation>
    </message>
    <message>
        <source>Amplitude Max:</source>
        <translation>振幅上限：</translation>
    </message>
    <message>
        <source>Switch between acceleration and angular velocity spectra.</source>
        <translation>在加速度頻譜與角速度頻譜之間切換。</translation>
    </message>
    <message>
        <source>Choose how many time-domain samples are included in each FFT calculation.</source>
        <translation>選擇每次 FFT 計算所用的時域取樣點數。</translation>
    </message>
    <message>
        <source>Select the window function applied before the FFT.</source>
        <translation>選擇 FFT 之前套用的窗函數。</translation>
    </message>
    <message>
        <source>Choose whether the spectrum is live, max-hold, or averaged across frames.</source>
        <translation>選擇顯示即時頻譜、最大保持頻譜或多個訊框的平均頻譜。</translation>
    </message>
    <message>
        <source>Set the visible FFT amplitude ceiling. Acceleration can be adjusted up to 32000 mG and angular velocity up to 4000 deg/s.</source>
        <translation>設定 FFT 振幅的顯示上限。加速度最高可設為 32000 mG，角速度最高可設為 4000 deg/s。</translation>
    </message>
    <message>
        <source>Shows the current sample rate and the RMSE of the resultant time-domain signal.</source>
        <translation>顯示目前的取樣頻率與合成時域訊號的 RMSE。</translation>
    </message>
    <message>
        <source>Start or pause FFT updates.</source>
        <translation>開始或暫停 FFT 更新。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Sample Frequency:%1Hz, RMSE of Norm:%2</source>
        <translation>取樣頻率：%1 Hz，合成 RMSE：%2</translation>
    </message>
    <message>
        <source>FFT %1</source>
        <translation>%1 FFT</translation>
    </message>
    <message>
        <source>Hover to inspect frequency and amplitude. Mouse wheel zooms Y, Ctrl + wheel zooms X, left drag pans, and right or middle double-click resets the view.</source>
        <translation>將滑鼠移到圖上可檢視頻率與振幅。滾輪縮放 Y 軸，Ctrl + 滾輪縮放 X 軸，按住左鍵拖曳可平移，按兩下右鍵或中鍵可重設檢視。</translation>
    </message>
    <message>
        <source>Ignore the steady value</source>
        <translation>忽略穩態值</translation>
    </message>
    <message>
        <source>Leaves 0 Hz, and what the window spreads of it into the bins beside it, out of peak and alarm. Otherwise gravity would be the highest peak of every acceleration spectrum.</source>
        <translation>峰值和警報不考慮 0 Hz 以及窗函數使其洩漏到相鄰譜線的部分。否則重力會成為每個加速度頻譜的最高峰。</translation>
    </message>
</context>
<context>
    <name>form_link_health</name>
    <message>
        <source>Link health</source>
        <translation>連線品質</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>線路</translation>
    </message>
    <message>
        <source>Bytes received</source>
        <translation>已接收位元組</translation>
    </message>
    <message>
        <source>All bytes of this connection</source>
        <translation>本次連線接收的所有位元組</translation>
    </message>
    <message>
        <source>Data packets</source>
        <translation>資料封包</translation>
    </message>
    <message>
        <source>Packets whose checksum fits; their samples are shown and recorded</source>
        <translation>檢查碼正確的封包；其取樣會顯示並記錄</translation>
    </message>
    <message>
        <source>Bootloader packets</source>
        <translation>啟動載入程式封包</translation>
    </message>
    <message>
        <source>Answers of the bootloader during a firmware update</source>
        <translation>韌體更新期間啟動載入程式的回應</translation>
    </message>
    <message>
        <source>Checksum errors</source>
        <translation>檢查碼錯誤</translation>
    </message>
    <message>
        <source>Packets that were damaged on the line and rejected</source>
        <translation>在線路上損壞而被拒絕的封包</translation>
    </message>
    <message>
        <source>Over-long lengths</source>
        <translation>長度超限</translation>
    </message>
    <message>
        <source>Headers that claim more bytes than a packet can have</source>
        <translation>宣告的位元組數超過封包上限的標頭</translation>
    </message>
    <message>
        <source>Unknown packet types</source>
        <translation>未知封包類型</translation>
    </message>
    <message>
        <source>Start bytes that no known packet type follows</source>
        <translation>其後不是已知封包類型的起始位元組</translation>
    </message>
    <message>
        <source>Bytes outside packets</source>
        <translation>封包以外的位元組</translation>
    </message>
    <message>
        <source>of these, noise</source>
        <translation>其中的雜訊</translation>
    </message>
    <message>
        <source>Bytes outside packets that cannot be text</source>
        <translation>封包以外且不可能是文字的位元組</translation>
    </message>
    <message>
        <source>Bytes before the first packet</source>
        <translation>第一個封包之前的位元組</translation>
    </message>
    <message>
        <source>A port is mostly opened in the middle of a packet: no sign of a fault</source>
        <translation>開啟序列埠時通常正處於封包中間，並非故障</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>最近的錯誤</translation>
    </message>
    <message>
        <source>Time of the last error</source>
        <translation>最近錯誤的時間</translation>
    </message>
    <message>
        <source>The computer&apos;s clock</source>
        <translation>電腦時間</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>資料流</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>取樣</translation>
    </message>
    <message>
        <source>Samples of all nodes</source>
        <translation>所有節點的取樣</translation>
    </message>
    <message>
        <source>Missing samples</source>
        <translation>遺失的取樣</translation>
    </message>
    <message>
        <source>By the time stamps of the samples, for all nodes; a dash when they have none</source>
        <translation>依據取樣的時間戳記，統計所有節點；沒有時間戳記時顯示短橫線</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>遺失率</translation>
    </message>
    <message>
        <source>Share of missing samples among all that the device sent</source>
        <translation>遺失的取樣占裝置傳送總數的比例</translation>
    </message>
    <message>
        <source>Largest gap</source>
        <translation>最長間隔</translation>
    </message>
    <message>
        <source>Longest time between two samples with others missing between them, by the device&apos;s clock</source>
        <translation>中間有取樣遺失的兩個取樣之間的最長時間（依裝置時鐘）</translation>
    </message>
    <message>
        <source>Last gap</source>
        <translation>最近的間隔</translation>
    </message>
    <message>
        <source>The computer&apos;s clock at the end of the last gap</source>
        <translation>最近一次間隔結束時的電腦時間</translation>
    </message>
    <message>
        <source>Clock jumps</source>
        <translation>時鐘跳變</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>Records dropped</source>
        <translation>已捨棄的記錄</translation>
    </message>
    <message>
        <source>The disk was too slow for them</source>
        <translation>磁碟速度過慢</translation>
    </message>
    <message>
        <source>Records not written</source>
        <translation>未寫入的記錄</translation>
    </message>
    <message>
        <source>The file could not be written</source>
        <translation>檔案無法寫入</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>節點</translation>
    </message>
    <message>
        <source>Figures of each node</source>
        <translation>各節點的數值</translation>
    </message>
    <message>
        <source>Nothing has been connected yet. Open a serial port to see how completely its data arrive.</source>
        <translation>尚未連線。開啟序列埠後可檢視資料接收的完整程度。</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>關閉(&amp;L)</translation>
    </message>
    <message>
        <source>checksum</source>
        <translation>檢查碼</translation>
    </message>
    <message>
        <source>over-long length</source>
        <translation>長度超限</translation>
    </message>
    <message>
        <source>unknown packet type</source>
        <translation>未知封包類型</translation>
    </message>
    <message>
        <source>noise</source>
        <translation>雜訊</translation>
    </message>
    <message>
        <source>Copy all figures to the clipboard</source>
        <translation>將所有數值複製到剪貼簿</translation>
    </message>
    <message>
        <source>There is nothing to copy yet</source>
        <translation>尚無可複製的內容</translation>
    </message>
    <message>
        <source>Connected: %1, %2 baud</source>
        <translation>已連線：%1，鮑率 %2</translation>
    </message>
    <message>
        <source>Closed: %1, %2 baud. Figures of the last connection.</source>
        <translation>已關閉：%1，鮑率 %2。顯示上次連線的數值。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>遺失</translation>
    </message>
    <message>
        <source>Text that the device answers to commands, and the remains of damaged packets</source>
        <translation>裝置對命令的文字回應，以及損壞封包的殘留</translation>
    </message>
    <message>
        <source>The latest damage on the line</source>
        <translation>線路上最近一次資料損壞</translation>
    </message>
    <message>
        <source>The device restarted or its time was set; what was lost in between is not known</source>
        <translation>裝置重新啟動或其時間被設定；其間遺失的資料不明</translation>
    </message>
</context>
<context>
    <name>form_record</name>
    <message>
        <source>Record to file</source>
        <translation>記錄至檔案</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>資料夾(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>瀏覽(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名稱(&amp;N)</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>已記錄時間</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速率</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>檔案大小</translation>
    </message>
    <message>
        <source>Free on disk</source>
        <translation>磁碟可用空間</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Show in f&amp;older</source>
        <translation>在資料夾中顯示(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the folder of the recording</source>
        <translation>開啟記錄檔案所在的資料夾</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>請輸入名稱。</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>名稱過長。</translation>
    </message>
    <message>
        <source>A name cannot hold any of %1</source>
        <translation>名稱不能包含下列任一字元：%1</translation>
    </message>
    <message>
        <source>This name is reserved by some systems. Choose another one.</source>
        <translation>此名稱是某些系統的保留名稱。請改用其他名稱。</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>選擇記錄資料夾</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>請選擇資料夾。</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>停止記錄(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>開始記錄(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what has arrived and closes the file</source>
        <translation>寫入已收到的資料並關閉檔案</translation>
    </message>
    <message>
        <source>Writes every sample that arrives into a file</source>
        <translation>將收到的每筆取樣寫入檔案</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記錄中</translation>
    </message>
    <message>
        <source>Recording ended: the port was closed</source>
        <translation>記錄已結束：序列埠已關閉</translation>
    </message>
    <message>
        <source>Recording stopped</source>
        <translation>記錄已停止</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>尚未記錄</translation>
    </message>
    <message>
        <source>Recording goes on when this window is closed.</source>
        <translation>關閉此視窗後，記錄仍會繼續。</translation>
    </message>
    <message>
        <source>Stop the recording to change this</source>
        <translation>停止記錄後才能變更</translation>
    </message>
    <message>
        <source>This folder was created for the recording.</source>
        <translation>此資料夾是為本次記錄建立的。</translation>
    </message>
    <message>
        <source>This folder does not exist yet: starting creates it.</source>
        <translation>此資料夾尚不存在，開始記錄時會自動建立。</translation>
    </message>
    <message>
        <source>Saved as %1; a new file begins every hour.</source>
        <translation>儲存為 %1；每小時建立一個新檔案。</translation>
    </message>
    <message>
        <source>%1 records/s</source>
        <translation>%1 筆/秒</translation>
    </message>
    <message>
        <source>%1, enough for days</source>
        <translation>%1，可記錄數日</translation>
    </message>
    <message>
        <source>%1, enough for %2 h</source>
        <translation>%1，可記錄約 %2 小時</translation>
    </message>
    <message>
        <source>%1, enough for %2 min</source>
        <translation>%1，可記錄約 %2 分鐘</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 是檔案，不是資料夾。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created. Choose another one.</source>
        <translation>無法建立資料夾 %1。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>The disk is too slow. Records dropped: %1</source>
        <translation>磁碟速度過慢。已捨棄的記錄筆數：%1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>無法寫入檔案：%1</translation>
    </message>
    <message>
        <source>Records that could not be written: %1</source>
        <translation>未能寫入的記錄筆數：%1</translation>
    </message>
    <message>
        <source>%1 has been deleted or moved. Stop and start again to record into a new file.</source>
        <translation>%1 已被刪除或移動。請停止後重新開始，以記錄至新檔案。</translation>
    </message>
    <message>
        <source>The disk is nearly full.</source>
        <translation>磁碟空間即將用盡。</translation>
    </message>
    <message>
        <source>Records written</source>
        <translation>已寫入筆數</translation>
    </message>
    <message>
        <source>The folder %1 cannot be shown.</source>
        <translation>無法顯示資料夾 %1。</translation>
    </message>
    <message>
        <source>Writing the last records…</source>
        <translation>正在寫入最後的記錄…</translation>
    </message>
    <message>
        <source>%1, enough for less than 1 min</source>
        <translation>%1，可記錄不足 1 分鐘</translation>
    </message>
    <message>
        <source>The last recording is still being written. Try again when that has ended.</source>
        <translation>上一次記錄仍在寫入，請待其結束後再試。</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>正在開始…</translation>
    </message>
    <message>
        <source>Stop &amp;after</source>
        <translation>依時間停止(&amp;A)</translation>
    </message>
    <message>
        <source>Longest time in minutes</source>
        <translation>最長時間（分鐘）</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Stop a&amp;t</source>
        <translation>依總大小停止(&amp;T)</translation>
    </message>
    <message>
        <source>Largest size of all files in MiB</source>
        <translation>所有檔案的總大小上限 (MiB)</translation>
    </message>
    <message>
        <source>When the connection was lost, recording goes on in a new file as soon as the port is open again</source>
        <translation>連線中斷後，一旦重新開啟序列埠，即在新檔案中繼續記錄</translation>
    </message>
    <message>
        <source>Waiting for the connection to come back</source>
        <translation>正在等待連線恢復</translation>
    </message>
    <message>
        <source>Recording ended: the time is up</source>
        <translation>記錄已結束：已達到設定的時間</translation>
    </message>
    <message>
        <source>Recording ended: the size is reached</source>
        <translation>記錄已結束：已達到設定的大小</translation>
    </message>
    <message>
        <source>Open the port again to go on.</source>
        <translation>重新開啟序列埠後即可繼續。</translation>
    </message>
    <message>
        <source>A file holds 16 nodes. Not recorded: %1</source>
        <translation>一個檔案最多容納 16 個節點。未記錄：%1</translation>
    </message>
    <message>
        <source>A file beside the recording cannot be written: %1</source>
        <translation>無法寫入記錄的附屬檔案：%1</translation>
    </message>
    <message>
        <source>Continue after the cable was unplu&amp;gged</source>
        <translation>拔線重連後繼續記錄(&amp;G)</translation>
    </message>
    <message>
        <source>Not connected. Open a serial port first.</source>
        <translation>尚未連線。請先開啟序列埠。</translation>
    </message>
</context>
<context>
    <name>form_settings</name>
    <message>
        <source>Device settings</source>
        <translation>裝置設定</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>產品</translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation>識別(&amp;I)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型號</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>組建</translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation>模組(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Node ID</source>
        <translation>節點 ID(&amp;N)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>請選擇</translation>
    </message>
    <message>
        <source>Number of the module in a radio network, 0 to 255</source>
        <translation>模組在無線網路中的編號，0 到 255</translation>
    </message>
    <message>
        <source>Output &amp;rate (Hz)</source>
        <translation>輸出頻率 (Hz)(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Attitude mode</source>
        <translation>姿態模式(&amp;A)</translation>
    </message>
    <message>
        <source>0: 6-axis, without magnetometer</source>
        <translation>0：6 軸，不使用磁力計</translation>
    </message>
    <message>
        <source>1: 9-axis, with magnetometer</source>
        <translation>1：9 軸，使用磁力計</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>維持不變</translation>
    </message>
    <message>
        <source>Which settings can be changed depends on the device. Connect it and identify it.</source>
        <translation>可變更的設定因裝置而異。請連接裝置並進行識別。</translation>
    </message>
    <message>
        <source>&amp;Save to device</source>
        <translation>儲存至裝置(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ommands</source>
        <translation>命令(&amp;O)</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>收發記錄</translation>
    </message>
    <message>
        <source>&amp;Copy log</source>
        <translation>複製記錄(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing sent yet</source>
        <translation>尚未傳送任何內容</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>關閉(&amp;L)</translation>
    </message>
    <message>
        <source>Read info</source>
        <translation>讀取資訊</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Stop output</source>
        <translation>停止輸出</translation>
    </message>
    <message>
        <source>Resume output</source>
        <translation>恢復輸出</translation>
    </message>
    <message>
        <source>Save config</source>
        <translation>儲存組態</translation>
    </message>
    <message>
        <source>Log COM config</source>
        <translation>查詢序列埠組態</translation>
    </message>
    <message>
        <source>Log user config</source>
        <translation>查詢使用者組態</translation>
    </message>
    <message>
        <source>Log disable</source>
        <translation>停用日誌輸出</translation>
    </message>
    <message>
        <source>Reboot</source>
        <translation>重新啟動</translation>
    </message>
    <message>
        <source>No device identified</source>
        <translation>尚未識別裝置</translation>
    </message>
    <message>
        <source>Saving does not change the rate of this device.</source>
        <translation>儲存不會變更此裝置的輸出頻率。</translation>
    </message>
    <message>
        <source>Waiting for the device: %1</source>
        <translation>正在等待裝置：%1</translation>
    </message>
    <message>
        <source>Identify the device first.</source>
        <translation>請先識別裝置。</translation>
    </message>
    <message>
        <source>Choose a node ID first.</source>
        <translation>請先選擇節點 ID。</translation>
    </message>
    <message>
        <source>Choose an output rate first.</source>
        <translation>請先選擇輸出頻率。</translation>
    </message>
    <message>
        <source>Sends %1</source>
        <translation>傳送 %1</translation>
    </message>
    <message>
        <source>Stops the output, reads what the device is and resumes the output</source>
        <translation>停止輸出，讀取裝置資訊，然後恢復輸出</translation>
    </message>
    <message>
        <source>Writes these settings and restarts the device</source>
        <translation>寫入這些設定並重新啟動裝置</translation>
    </message>
    <message>
        <source>Saving restarts the device; this takes 2 seconds.</source>
        <translation>儲存後裝置會重新啟動，約需 2 秒。</translation>
    </message>
    <message>
        <source>The device does not answer. Check the baud rate, then identify it again.</source>
        <translation>裝置沒有回應。請檢查鮑率，然後重新識別。</translation>
    </message>
    <message>
        <source>The device refused %1.</source>
        <translation>裝置拒絕了 %1。</translation>
    </message>
    <message>
        <source>The settings were sent and the device has restarted.</source>
        <translation>設定已傳送，裝置已重新啟動。</translation>
    </message>
    <message>
        <source>The device refused at least one of %1.</source>
        <translation>裝置至少拒絕了以下命令之一：%1。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The device does not answer, although its data arrive. Identify it again.</source>
        <translation>能收到裝置的資料，但裝置沒有回應。請重新識別。</translation>
    </message>
    <message>
        <source>The answer was damaged on the line. Identify the device again.</source>
        <translation>回應在線路上損壞。請重新識別裝置。</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>仍然儲存</translation>
    </message>
    <message>
        <source>The device is not sending text. The baud rate may be wrong.</source>
        <translation>裝置傳送的不是文字。鮑率可能有誤。</translation>
    </message>
    <message>
        <source>%1 Hz needs %2 % of the line&apos;s capacity at %3 baud: samples will be lost.</source>
        <translation>鮑率為 %3 時，%1 Hz 需要線路容量的 %2 %：會遺失取樣。</translation>
    </message>
</context>
<context>
    <name>form_threed</name>
    <message>
        <source>3D view</source>
        <translation>3D 檢視</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>姿態</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>基準姿態</translation>
    </message>
    <message>
        <source>Set &amp;home</source>
        <translation>設為基準(&amp;H)</translation>
    </message>
    <message>
        <source>Take the live pose as the reference</source>
        <translation>將目前的即時姿態設為基準</translation>
    </message>
    <message>
        <source>&amp;Clear home</source>
        <translation>清除基準(&amp;C)</translation>
    </message>
    <message>
        <source>Forget the reference</source>
        <translation>清除已設定的基準姿態</translation>
    </message>
    <message>
        <source>Mounting</source>
        <translation>安裝方向</translation>
    </message>
    <message>
        <source>How the axes of the device lie in the body</source>
        <translation>裝置座標軸在載體中的方向</translation>
    </message>
    <message>
        <source>RFU / ENU 312 (Z-X-Y)</source>
        <translation>RFU / ENU 312 (Z-X-Y)</translation>
    </message>
    <message>
        <source>FLU / NWU / ZYX Intrinsic (Z-Y-X)</source>
        <translation>FLU / NWU / ZYX 內旋 (Z-Y-X)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>模型</translation>
    </message>
    <message>
        <source>Jet</source>
        <translation>噴射機</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>立方體</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>飛機</translation>
    </message>
    <message>
        <source>Spaceship</source>
        <translation>太空船</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>載入(&amp;L)…</translation>
    </message>
    <message>
        <source>Show a model from a file: X forward, Y up, Z to the right</source>
        <translation>顯示檔案中的模型：X 向前，Y 向上，Z 向右</translation>
    </message>
    <message>
        <source>&amp;Reset view</source>
        <translation>重設檢視(&amp;R)</translation>
    </message>
    <message>
        <source>Put the camera back (Home key in the picture, or double-click)</source>
        <translation>恢復初始視角（在畫面中按 Home 鍵或按兩下）</translation>
    </message>
    <message>
        <source>The 3D picture needs OpenGL, which is not available here. The numbers are complete.</source>
        <translation>3D 畫面需要 OpenGL，但目前的環境無法使用。數值顯示不受影響。</translation>
    </message>
    <message>
        <source>The 3D picture cannot be drawn here. The numbers are complete.</source>
        <translation>目前的環境無法繪製 3D 畫面。數值顯示不受影響。</translation>
    </message>
    <message>
        <source>Current preset: RFU body / ENU navigation, Euler 312 intrinsic (Z-X-Y).</source>
        <translation>目前預設集：RFU 載體系 / ENU 導航系，歐拉角 312 內旋 (Z-X-Y)。</translation>
    </message>
    <message>
        <source>Current preset: FLU body or NWU body, Euler ZYX intrinsic (Z-Y-X).</source>
        <translation>目前預設集：FLU 載體系或 NWU 載體系，歐拉角 ZYX 內旋 (Z-Y-X)。</translation>
    </message>
    <message>
        <source>Current preset: Unknown.</source>
        <translation>目前預設集：未知。</translation>
    </message>
    <message>
        <source>Capture the current live pose as Home to compare mounting bias and installation offsets.</source>
        <translation>擷取目前的即時姿態作為基準，以比較安裝偏差與偏移。</translation>
    </message>
    <message>
        <source>Home pose captured. Delta shows the live attitude relative to the stored home reference.</source>
        <translation>已擷取基準姿態。「相對基準」顯示即時姿態相對於該基準的偏差。</translation>
    </message>
    <message>
        <source>Waiting for live attitude data to capture home pose.</source>
        <translation>正在等待即時姿態資料，以擷取基準姿態。</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>無姿態資料</translation>
    </message>
    <message>
        <source>From quaternion</source>
        <translation>來自四元數</translation>
    </message>
    <message>
        <source>From Euler angles</source>
        <translation>來自歐拉角</translation>
    </message>
    <message>
        <source>Open 3D asset</source>
        <translation>開啟 3D 模型</translation>
    </message>
    <message>
        <source>3D Assets (*.obj *.mesh)</source>
        <translation>3D 模型 (*.obj *.mesh)</translation>
    </message>
    <message>
        <source>The 3D picture could not be loaded. See the log for the reason.</source>
        <translation>無法載入 3D 畫面。原因請見日誌。</translation>
    </message>
</context>
<context>
    <name>form_updater</name>
    <message>
        <source>Firmware Update</source>
        <translation>韌體更新</translation>
    </message>
    <message>
        <source>Image file</source>
        <translation>映像檔</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>燒錄</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日誌</translation>
    </message>
    <message>
        <source>Copies what is shown above together with the log, for a report</source>
        <translation>複製上方顯示的內容與日誌，方便回報問題</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>The port was closed: connect again before the download.</source>
        <translation>序列埠已關閉：燒錄前請重新連線。</translation>
    </message>
    <message>
        <source>Please select image
</source>
        <translation>請選擇映像檔
</translation>
    </message>
    <message>
        <source>PATH: %1
</source>
        <translation>路徑：%1
</translation>
    </message>
    <message>
        <source>Text Files(*.hex)</source>
        <translation>HEX 檔案 (*.hex)</translation>
    </message>
    <message>
        <source>FILE:%1
</source>
        <translation>檔案：%1
</translation>
    </message>
    <message>
        <source>No file selected
</source>
        <translation>尚未選擇檔案
</translation>
    </message>
    <message>
        <source>Failed to open file
</source>
        <translation>無法開啟檔案
</translation>
    </message>
    <message>
        <source>Failed to parse HEX file
</source>
        <translation>無法剖析 HEX 檔案
</translation>
    </message>
    <message>
        <source>SIZE:%1 bytes
</source>
        <translation>大小：%1 位元組
</translation>
    </message>
    <message>
        <source>SP:0x%1
</source>
        <translation>SP：0x%1
</translation>
    </message>
    <message>
        <source>PC:0x%1
</source>
        <translation>PC：0x%1
</translation>
    </message>
    <message>
        <source>ADDR:0x%1
</source>
        <translation>位址：0x%1
</translation>
    </message>
    <message>
        <source>
--- Connecting to bootloader ---
</source>
        <translation>
--- 正在連線至啟動載入程式 ---
</translation>
    </message>
    <message>
        <source>CONNECT ERR<byte value="xd"/>
</source>
        <translation>連線失敗<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Please check:
</source>
        <translation>請檢查：
</translation>
    </message>
    <message>
        <source>  - Device is powered on
</source>
        <translation>  - 裝置是否已通電
</translation>
    </message>
    <message>
        <source>  - Serial port is correct
</source>
        <translation>  - 序列埠是否正確
</translation>
    </message>
    <message>
        <source>  - Bootloader is installed
</source>
        <translation>  - 是否已安裝啟動載入程式
</translation>
    </message>
    <message>
        <source>Connect OK
</source>
        <translation>連線成功
</translation>
    </message>
    <message>
        <source>PKT SIZE:%1
</source>
        <translation>封包大小：%1
</translation>
    </message>
    <message>
        <source>FLASH SIZE:%1KB
</source>
        <translation>快閃記憶體容量：%1 KB
</translation>
    </message>
    <message>
        <source>SDID:</source>
        <translation>SDID：</translation>
    </message>
    <message>
        <source>KBOOT:%1.%2.%3
</source>
        <translation>KBOOT：%1.%2.%3
</translation>
    </message>
    <message>
        <source>SECTOR:%1
</source>
        <translation>磁區大小：%1
</translation>
    </message>
    <message>
        <source>
Ready to download firmware.
</source>
        <translation>
可以燒錄韌體。
</translation>
    </message>
    <message>
        <source>
--- Loading HEX file ---
</source>
        <translation>
--- 正在載入 HEX 檔案 ---
</translation>
    </message>
    <message>
        <source>NO IMAGE<byte value="xd"/>
</source>
        <translation>沒有映像檔<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>
--- Starting download ---
</source>
        <translation>
--- 開始燒錄 ---
</translation>
    </message>
    <message>
        <source>Download failed
</source>
        <translation>燒錄失敗
</translation>
    </message>
    <message>
        <source>Not connected to bootloader<byte value="xd"/>
</source>
        <translation>尚未連線至啟動載入程式<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Press Connect first: the device has to run its bootloader.</source>
        <translation>請先按一下「連線」：裝置必須處於啟動載入程式中。</translation>
    </message>
    <message>
        <source>Update complete, image running...
</source>
        <translation>更新完成，韌體執行中...
</translation>
    </message>
    <message>
        <source>A download is running.</source>
        <translation>正在燒錄。</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Chooses the image, an Intel HEX file</source>
        <translation>選擇映像檔（Intel HEX 格式）</translation>
    </message>
    <message>
        <source>Restarts the device into its bootloader</source>
        <translation>重新啟動裝置並進入啟動載入程式</translation>
    </message>
    <message>
        <source>Erases the device&apos;s firmware and writes the image</source>
        <translation>抹除裝置中的韌體並寫入映像檔</translation>
    </message>
    <message>
        <source>Press Connect first.</source>
        <translation>請先按一下「連線」。</translation>
    </message>
    <message>
        <source>Not connected. Connect restarts the device; this takes up to 4 s.</source>
        <translation>尚未連線。按一下「連線」會重新啟動裝置，最長需 4 秒。</translation>
    </message>
    <message>
        <source>Ready to download</source>
        <translation>可以燒錄</translation>
    </message>
    <message>
        <source>Waiting for the bootloader</source>
        <translation>等待連線至啟動載入程式</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>與裝置的連線已中斷。</translation>
    </message>
    <message>
        <source>The bootloader refused a packet.</source>
        <translation>啟動載入程式拒絕了一個封包。</translation>
    </message>
    <message>
        <source>The bootloader aborted the transfer.</source>
        <translation>啟動載入程式中止了傳輸。</translation>
    </message>
    <message>
        <source>The bootloader did not answer the erase command within 1.5 s.</source>
        <translation>啟動載入程式未在 1.5 秒內回應抹除命令。</translation>
    </message>
    <message>
        <source>The bootloader did not answer the write command within 1.5 s.</source>
        <translation>啟動載入程式未在 1.5 秒內回應寫入命令。</translation>
    </message>
    <message>
        <source>The bootloader did not acknowledge a packet.</source>
        <translation>啟動載入程式未確認某個封包。</translation>
    </message>
    <message>
        <source>No bootloader answered.</source>
        <translation>啟動載入程式沒有回應。</translation>
    </message>
    <message>
        <source>The flash may be partly erased: the firmware may not start any more.</source>
        <translation>快閃記憶體可能已部分抹除：韌體可能無法再啟動。</translation>
    </message>
    <message>
        <source>The flash is erased: the device has no firmware now.</source>
        <translation>快閃記憶體已抹除：裝置中目前沒有韌體。</translation>
    </message>
    <message>
        <source>Nothing was written, but the flash may be erased: the firmware may not start any more.</source>
        <translation>未寫入任何資料，但快閃記憶體可能已抹除：韌體可能無法再啟動。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes were written: the firmware is incomplete and cannot start.</source>
        <translation>已寫入 %1 / %2 位元組：韌體不完整，無法啟動。</translation>
    </message>
    <message>
        <source>Check the cable, open the port again and press Connect.</source>
        <translation>請檢查連接線，重新開啟序列埠，然後按一下「連線」。</translation>
    </message>
    <message>
        <source>Check power, port and baud rate, then press Connect again.</source>
        <translation>請檢查電源、序列埠與鮑率，然後再按一下「連線」。</translation>
    </message>
    <message>
        <source>It had reported status %1 before.</source>
        <translation>先前它曾回報狀態 %1。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 / %2 位元組</translation>
    </message>
    <message>
        <source>%1 · %2 KB/s · %3 s left</source>
        <translation>%1 · %2 KB/s · 剩餘 %3 s</translation>
    </message>
    <message>
        <source>Bootloader %1, %2 KB of flash in sectors of %3 bytes, packets of up to %4 bytes, chip %5</source>
        <translation>啟動載入程式 %1，快閃記憶體 %2 KB，磁區 %3 位元組，封包最大 %4 位元組，晶片 %5</translation>
    </message>
    <message>
        <source>%1 bytes from %2, stack pointer %3, reset vector %4</source>
        <translation>%1 位元組，起始位址 %2，堆疊指標 %3，重置向量 %4</translation>
    </message>
    <message>
        <source>Restart device</source>
        <translation>重新啟動裝置</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>The device is still in its bootloader: it sends no data until it restarts.</source>
        <translation>裝置仍處於啟動載入程式中：重新啟動之前不會傳送資料。</translation>
    </message>
    <message>
        <source>Stop the download</source>
        <translation>停止燒錄</translation>
    </message>
    <message>
        <source>No bootloader is connected.</source>
        <translation>未連線啟動載入程式。</translation>
    </message>
    <message>
        <source>The download is being stopped.</source>
        <translation>正在停止燒錄。</translation>
    </message>
    <message>
        <source>Stops the download; asks first</source>
        <translation>停止燒錄（會先詢問）</translation>
    </message>
    <message>
        <source>No download is running.</source>
        <translation>沒有正在進行的燒錄。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>燒錄已停止。</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>儲存報告(&amp;S)…</translation>
    </message>
    <message>
        <source>Copy &amp;log</source>
        <translation>複製日誌(&amp;L)</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <translation>報告已儲存至 %1。</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2</source>
        <translation>無法將報告儲存至 %1：%2</translation>
    </message>
    <message>
        <source>The serial port is being opened: press Connect again in a moment.</source>
        <translation>正在開啟序列埠：請稍後再按一下「連線」。</translation>
    </message>
    <message>
        <source>Nothing was erased and nothing was written: see the reasons above.</source>
        <translation>未抹除也未寫入任何資料：原因請見上方。</translation>
    </message>
    <message>
        <source>Restart the program</source>
        <translation>重新啟動程式</translation>
    </message>
    <message>
        <source>Use packets of %1 bytes</source>
        <translation>使用 %1 位元組的封包</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>儲存報告</translation>
    </message>
    <message>
        <source>Text Files(*.txt)</source>
        <translation>文字檔案 (*.txt)</translation>
    </message>
    <message>
        <source>The bootloader is connected: press Download, or Restart device.</source>
        <translation>啟動載入程式已連線：請按一下「燒錄」或「重新啟動裝置」。</translation>
    </message>
    <message>
        <source>Download anyway</source>
        <translation>仍要燒錄</translation>
    </message>
    <message>
        <source>The download has to finish first: until then the device has no complete firmware.</source>
        <translation>必須等待燒錄完成：在此之前，裝置中沒有完整的韌體。</translation>
    </message>
    <message>
        <source>Leave as is</source>
        <translation>維持現狀</translation>
    </message>
    <message>
        <source>The device restarts with its present firmware.</source>
        <translation>裝置將以現有韌體重新啟動。</translation>
    </message>
    <message>
        <source>The bootloader did not confirm the restart. Unplug the device and plug it in again if no data arrive.</source>
        <translation>啟動載入程式未確認重新啟動。如果收不到資料，請拔下裝置後重新插入。</translation>
    </message>
    <message>
        <source>Stop the download? The device will have no complete firmware. Its bootloader remains: press Connect, then Download.</source>
        <translation>要停止燒錄嗎？裝置中將沒有完整的韌體。啟動載入程式會保留：之後請按一下「連線」，再按一下「燒錄」。</translation>
    </message>
    <message>
        <source>Keep downloading</source>
        <translation>繼續燒錄</translation>
    </message>
    <message>
        <source>The image could not be loaded; the device is unchanged. Choose another file.</source>
        <translation>無法載入映像檔；裝置未變更。請選擇其他檔案。</translation>
    </message>
    <message>
        <source>The file %1 no longer exists: choose another one.</source>
        <translation>檔案 %1 已不存在：請選擇其他檔案。</translation>
    </message>
    <message>
        <source>The file has changed since the interrupted update. Press Download to write it as it is now.</source>
        <translation>自更新中斷後，檔案已遭變更。按一下「燒錄」將寫入其目前的內容。</translation>
    </message>
    <message>
        <source>Saves what was done and how it ended as text</source>
        <translation>將更新過程與結果儲存為文字</translation>
    </message>
    <message>
        <source>No update has run yet.</source>
        <translation>尚未進行更新。</translation>
    </message>
    <message>
        <source>There are doubts about this image: tick &quot;%1&quot; to write it.</source>
        <translation>此映像檔有疑慮：勾選「%1」後才能寫入。</translation>
    </message>
    <message>
        <source>Leaves the bootloader: the device starts its present firmware</source>
        <translation>離開啟動載入程式：裝置啟動現有韌體</translation>
    </message>
    <message>
        <source>The file has changed since it was loaded. Choose it again to load the new version.</source>
        <translation>檔案在載入後已遭變更。請重新選擇，以載入新版本。</translation>
    </message>
    <message>
        <source>Erase anyway</source>
        <translation>仍要抹除</translation>
    </message>
    <message>
        <source>The serial port is closed or accepts no data.</source>
        <translation>序列埠已關閉或不接收資料。</translation>
    </message>
    <message>
        <source>The device answered, but not like a bootloader.</source>
        <translation>裝置有回應，但不是啟動載入程式的回應。</translation>
    </message>
    <message>
        <source>Nothing was written: the device&apos;s firmware is unchanged.</source>
        <translation>未寫入任何資料：裝置中的韌體未變更。</translation>
    </message>
    <message>
        <source>The bootloader is still in the device: press Connect, then Download.</source>
        <translation>啟動載入程式仍在裝置中：請按一下「連線」，然後按一下「燒錄」。</translation>
    </message>
    <message>
        <source>The bootloader accepts no data: it reports packets of %1 bytes.</source>
        <translation>啟動載入程式不接收資料：其回報的封包大小為 %1 位元組。</translation>
    </message>
    <message>
        <source>There is no file at this path: choose an image.</source>
        <translation>此路徑下沒有檔案：請選擇映像檔。</translation>
    </message>
    <message>
        <source>Not a loadable Intel HEX file. See debug.log for the reason, or choose another file.</source>
        <translation>不是可載入的 Intel HEX 檔案。原因請見 debug.log，或選擇其他檔案。</translation>
    </message>
</context>
<context>
    <name>port_choice</name>
    <message>
        <source>Enter a baud rate.</source>
        <translation>請輸入鮑率。</translation>
    </message>
    <message>
        <source>Enter a whole number, such as %1.</source>
        <translation>請輸入整數，例如 %1。</translation>
    </message>
    <message>
        <source>Too low: the lowest rate is %1.</source>
        <translation>過低：鮑率不得低於 %1。</translation>
    </message>
    <message>
        <source>Too high: the highest rate is %1.</source>
        <translation>過高：鮑率不得高於 %1。</translation>
    </message>
</context>
<context>
    <name>product_profile</name>
    <message>
        <source>Legacy Wireless Gateway (0x62/0x63)</source>
        <translation>舊版無線閘道器 (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Legacy Device</source>
        <translation>未知的舊版裝置</translation>
    </message>
    <message>
        <source>Unknown Mz14 Device</source>
        <translation>未知的 Mz14 裝置</translation>
    </message>
    <message>
        <source>Unknown Wireless Gateway (0x62/0x63)</source>
        <translation>未知的無線閘道器 (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Device</source>
        <translation>未知的裝置</translation>
    </message>
</context>
<context>
    <name>serial_error_text</name>
    <message>
        <source>You are not allowed to open %1.</source>
        <translation>沒有開啟 %1 的權限。</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access.</source>
        <translation>請向這台電腦的系統管理員申請存取權限。</translation>
    </message>
    <message>
        <source>Run &quot;%1&quot; in a terminal, then log out and in again.</source>
        <translation>請在終端機執行「%1」，然後登出再重新登入。</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: the device was unplugged or switched off. Check the cable, then open the port again.</source>
        <translation>與 %1 的連線已中斷：裝置遭拔除或已關機。請檢查連接線，然後重新開啟序列埠。</translation>
    </message>
    <message>
        <source>%1 is not there. Check the cable and that the device is switched on.</source>
        <translation>%1 不存在。請檢查連接線，並確認裝置已開機。</translation>
    </message>
    <message>
        <source>Another program uses %1. Close it and try again.</source>
        <translation>其他程式正在使用 %1。請關閉該程式後再試一次。</translation>
    </message>
    <message>
        <source>%1 is open already.</source>
        <translation>%1 已經開啟。</translation>
    </message>
    <message>
        <source>%1 is not a serial port, or it does not support %2 baud. Choose another port or baud rate.</source>
        <translation>%1 不是序列埠，或不支援鮑率 %2。請選擇其他連接埠或鮑率。</translation>
    </message>
    <message>
        <source>%1 cannot be used (error %2). Unplug the device, plug it in again and retry.</source>
        <translation>無法使用 %1（錯誤 %2）。請拔下裝置，重新接上後再試一次。</translation>
    </message>
</context>
<context>
    <name>session_text</name>
    <message>
        <source>The port is being opened.</source>
        <translation>正在開啟序列埠。</translation>
    </message>
    <message>
        <source>A command waits for the device&apos;s reply.</source>
        <translation>有命令正在等待裝置回應。</translation>
    </message>
    <message>
        <source>Data arrive: the baud rate is right.</source>
        <translation>正在接收資料：鮑率正確。</translation>
    </message>
    <message>
        <source>The device runs its bootloader. Restart it in the firmware update window first.</source>
        <translation>裝置處於啟動載入程式中。請先在韌體更新視窗中重新啟動裝置。</translation>
    </message>
    <message>
        <source>Press Connect first.</source>
        <translation>請先按一下「連線」。</translation>
    </message>
    <message>
        <source>No download runs.</source>
        <translation>沒有正在進行的燒錄。</translation>
    </message>
    <message>
        <source>The port is being closed.</source>
        <translation>正在關閉序列埠。</translation>
    </message>
    <message>
        <source>The device runs its bootloader.
It sends no data until it restarts.</source>
        <translation>裝置處於啟動載入程式中。
重新啟動之前不會傳送資料。</translation>
    </message>
    <message>
        <source>Firmware is being written.
Do not unplug the device.</source>
        <translation>正在寫入韌體。
請勿拔下裝置。</translation>
    </message>
    <message>
        <source>Trying %1 baud...</source>
        <translation>正在嘗試 %1 鮑...</translation>
    </message>
    <message>
        <source>Not connected. Open a serial port first.</source>
        <translation>尚未連線。請先開啟序列埠。</translation>
    </message>
    <message>
        <source>A firmware download is running and must finish first.</source>
        <translation>正在燒錄韌體，必須先等待其完成。</translation>
    </message>
    <message>
        <source>The connection was lost. The device is waited for.</source>
        <translation>連線已中斷。正在等待裝置。</translation>
    </message>
    <message>
        <source>Over UDP the device can only be listened to: commands may get lost or arrive in another order. Connect by tcp: or rfc2217: to send them.</source>
        <translation>透過 UDP 只能接收裝置的資料：命令可能遺失或未依序到達。若要傳送命令，請透過 tcp: 或 rfc2217: 連線。</translation>
    </message>
    <message>
        <source>This is a recording: there is no device to send anything to.</source>
        <translation>這是記錄檔案：沒有可接收命令的裝置。</translation>
    </message>
    <message>
        <source>The baud rate of this source is not set from here. Connect by rfc2217: to set that of a serial server.</source>
        <translation>此資料來源的鮑率不在此處設定。若要設定序列埠伺服器的鮑率，請透過 rfc2217: 連線。</translation>
    </message>
    <message>
        <source>The connection was lost.
Waiting for the device...</source>
        <translation>連線已中斷。
正在等待裝置...</translation>
    </message>
    <message>
        <source>This is a file already: capturing it again would add nothing.</source>
        <translation>這已經是一個檔案:再次擷取沒有意義。</translation>
    </message>
    <message>
        <source>The file is being opened.</source>
        <translation>正在開啟檔案。</translation>
    </message>
    <message>
        <source>Playing back %1
%2 packets/s</source>
        <translation>正在播放 %1
%2 封包/秒</translation>
    </message>
</context>
<context>
    <name>source_address</name>
    <message>
        <source>&quot;?%1&quot; is not known here. Only the baud rate can follow, such as ?baud=%2.</source>
        <translation>無法識別「?%1」。此處只能附加鮑率，例如 ?baud=%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a baud rate. It is a whole number from %2 to %3.</source>
        <translation>「%1」不是鮑率。鮑率是 %2 到 %3 之間的整數。</translation>
    </message>
    <message>
        <source>The address of a network source looks like %1.</source>
        <translation>網路資料來源的位址格式如 %1。</translation>
    </message>
    <message>
        <source>The bracket after the IPv6 address is missing, as in %1.</source>
        <translation>IPv6 位址後缺少右方括號，正確寫法如 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>「%1」不是 IPv6 位址。</translation>
    </message>
    <message>
        <source>Only a colon and the port can follow the bracket, as in %1.</source>
        <translation>方括號後只能是冒號與連接埠，例如 %1。</translation>
    </message>
    <message>
        <source>An IPv6 address needs brackets, as in %1.</source>
        <translation>IPv6 位址須加上方括號，例如 %1。</translation>
    </message>
    <message>
        <source>Add the host, as in %1.</source>
        <translation>請加上主機，例如 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name or address of a host.</source>
        <translation>「%1」不是主機名稱或主機位址。</translation>
    </message>
    <message>
        <source>Add the port, as in %1.</source>
        <translation>請加上連接埠，例如 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a port. It is a whole number from 1 to 65535.</source>
        <translation>「%1」不是連接埠。連接埠是 1 到 65535 之間的整數。</translation>
    </message>
    <message>
        <source>Add the port, as in serial:/dev/ttyUSB0.</source>
        <translation>請加上序列埠，例如 serial:/dev/ttyUSB0。</translation>
    </message>
    <message>
        <source>Add the path of the file, as in file:recordings/walk.mcap.</source>
        <translation>請加上檔案路徑，例如 file:recordings/walk.mcap。</translation>
    </message>
    <message>
        <source>Nothing can follow &quot;demo:&quot;.</source>
        <translation>「demo:」之後不能有其他內容。</translation>
    </message>
    <message>
        <source>Choose a port, or type its path or an address.</source>
        <translation>請選擇序列埠，或輸入序列埠路徑或位址。</translation>
    </message>
    <message>
        <source>This text is longer than any address.</source>
        <translation>此文字過長，不可能是位址。</translation>
    </message>
    <message>
        <source>This text contains characters that no address has.</source>
        <translation>此文字包含位址中不會出現的字元。</translation>
    </message>
    <message>
        <source>&quot;%1:&quot; is not known here. Sources are serial:, tcp:, rfc2217:, udp:, file: and demo:.</source>
        <translation>無法識別「%1:」。可用的資料來源為 serial:、tcp:、rfc2217:、udp:、file: 和 demo:。</translation>
    </message>
</context>
<context>
    <name>source_error_text</name>
    <message>
        <source>Another program is connected to %1, and only one can be.</source>
        <translation>另有程式已連線至 %1，而它只允許一個連線。</translation>
    </message>
    <message>
        <source>Close it there. If it is gone already, let the server drop old connections (ser2net: the option kickolduser).</source>
        <translation>請關閉該程式。如果它已不存在，請讓伺服器中斷舊連線（ser2net：選項 kickolduser）。</translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation>%1 關閉了連線。</translation>
    </message>
    <message>
        <source>Another program may have connected to the same port, which ends this connection, or the server was stopped. Close the other program, or start the server, then open the source again.</source>
        <translation>可能有其他程式連線至同一連接埠，因而中斷了此連線；也可能是伺服器已停止。請關閉該程式或啟動伺服器，然後重新開啟資料來源。</translation>
    </message>
    <message>
        <source>The serial port at %1 does not accept 8 data bits without parity. Check the settings of the server.</source>
        <translation>%1 的序列埠不支援 8 個資料位元、無同位檢查的設定。請檢查伺服器的設定。</translation>
    </message>
    <message>
        <source>The serial port at %1 was set to %2 baud instead of %3. Choose a rate that it supports.</source>
        <translation>%1 的序列埠鮑率被設為 %2，而不是 %3。請選擇其支援的鮑率。</translation>
    </message>
    <message>
        <source>There is no host with the name %1. Check its spelling, or enter its address instead.</source>
        <translation>沒有名為 %1 的主機。請檢查拼字，或改為輸入其位址。</translation>
    </message>
    <message>
        <source>Nothing listens on port %1 of %2. Start the serial server there (such as ser2net), or check the port.</source>
        <translation>%2 的連接埠 %1 上沒有程式在接聽。請在該主機上啟動序列埠伺服器（例如 ser2net），或檢查連接埠。</translation>
    </message>
    <message>
        <source>There is no way to %1 (%2). Check the network cable or Wi-Fi of both computers.</source>
        <translation>無法連至 %1（%2）。請檢查兩台電腦的網路線或 Wi-Fi。</translation>
    </message>
    <message>
        <source>%1 did not answer. Check that it is switched on, and that no firewall blocks port %2.</source>
        <translation>%1 沒有回應。請確認其已開機，且沒有防火牆封鎖連接埠 %2。</translation>
    </message>
    <message>
        <source>%1 closed the connection and gave the reason &quot;%2&quot;.</source>
        <translation>%1 關閉了連線，原因為「%2」。</translation>
    </message>
    <message>
        <source>Check the settings of the server and its serial port.</source>
        <translation>請檢查伺服器及其序列埠的設定。</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: it does not answer any more. Check the network, then open the source again.</source>
        <translation>與 %1 的連線已中斷：對方不再回應。請檢查網路，然後重新開啟資料來源。</translation>
    </message>
    <message>
        <source>The simulator is not installed: there is no program &quot;%1&quot; beside this one. Install it, or connect a device.</source>
        <translation>未安裝模擬器：本程式所在的資料夾中沒有程式「%1」。請安裝模擬器，或連接裝置。</translation>
    </message>
    <message>
        <source>The simulator has ended.</source>
        <translation>模擬器已結束。</translation>
    </message>
    <message>
        <source>The simulator could not be started.</source>
        <translation>無法啟動模擬器。</translation>
    </message>
</context>
<context>
    <name>status_text</name>
    <message>
        <source>Unconnected...</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Connected...</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Using fallback product profile.</source>
        <translation>正在使用備用產品設定檔。</translation>
    </message>
    <message>
        <source>Product info deferred during live stream.</source>
        <translation>即時資料串流期間暫緩讀取產品資訊。</translation>
    </message>
    <message>
        <source>Product info pending...</source>
        <translation>正在等待產品資訊...</translation>
    </message>
    <message>
        <source>Single node (0x%1)</source>
        <translation>單一節點 (0x%1)</translation>
    </message>
    <message>
        <source>Gateway (0x%1)</source>
        <translation>閘道器 (0x%1)</translation>
    </message>
    <message>
        <source>Items %1</source>
        <translation>資料項目 %1</translation>
    </message>
    <message>
        <source>Connected.
No frame stream detected.</source>
        <translation>已連線。
未偵測到訊框串流。</translation>
    </message>
    <message>
        <source>Building connection...</source>
        <translation>正在建立連線...</translation>
    </message>
    <message>
        <source>[Serial]
%1 %2
</source>
        <translation>[序列埠]
%1 %2
</translation>
    </message>
    <message>
        <source>Protocol:</source>
        <translation>協定:</translation>
    </message>
    <message>
        <source>FrameRate:</source>
        <translation>訊框率:</translation>
    </message>
    <message>
        <source>Wireless</source>
        <translation>無線</translation>
    </message>
    <message>
        <source>DONGLE ID</source>
        <translation>接收器 ID</translation>
    </message>
    <message>
        <source>TOTAL OF NODE</source>
        <translation>節點總數</translation>
    </message>
</context>
<context>
    <name>verdict_text</name>
    <message>
        <source>A packet of %1 bytes cannot be acknowledged within 0.2 s at %2 baud.</source>
        <translation>鮑率為 %2 時，%1 位元組的封包無法在 0.2 秒內獲得確認。</translation>
    </message>
    <message>
        <source>Packets of %1 bytes can.</source>
        <translation>%1 位元組的封包則可以。</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>映像檔是空的。</translation>
    </message>
    <message>
        <source>The file begins at %1, but it would be written to %2, where the first file of this run began. Restart the program to write it to its own address.</source>
        <translation>檔案的起始位址為 %1，但會寫入 %2，即本次執行中第一個檔案的起始位址。若要將其寫入本身的位址，請重新啟動程式。</translation>
    </message>
    <message>
        <source>The image does not fit the %1 KB of flash from this address on.</source>
        <translation>從此位址起，映像檔超出了 %1 KB 的快閃記憶體空間。</translation>
    </message>
    <message>
        <source>The image&apos;s build of %1 is older than the device&apos;s: %2.</source>
        <translation>映像檔的組建日期為 %1，早於裝置的組建：%2。</translation>
    </message>
    <message>
        <source>Not verified: this bootloader cannot read the flash back.</source>
        <translation>未驗證：此啟動載入程式無法回讀快閃記憶體。</translation>
    </message>
    <message>
        <source>Not verified: the chip is locked against reading.</source>
        <translation>未驗證：晶片已啟用讀取保護。</translation>
    </message>
    <message>
        <source>Not verified: the bootloader refused to read the flash back (status %1).</source>
        <translation>未驗證：啟動載入程式拒絕回讀快閃記憶體（狀態 %1）。</translation>
    </message>
    <message>
        <source>%1 packets were sent again after silence and may have been written twice: the firmware may be wrong even if it starts.</source>
        <translation>%1 個封包因無回應而重送，可能寫入了兩次：韌體即使能啟動，也可能有誤。</translation>
    </message>
    <message>
        <source>But the bootloader reported status %1.</source>
        <translation>但啟動載入程式回報了狀態 %1。</translation>
    </message>
    <message>
        <source>But the bootloader did not confirm the whole image.</source>
        <translation>但啟動載入程式未確認完整的映像檔。</translation>
    </message>
    <message>
        <source>%1 bytes were written in %2 s, %3 of %4 packets were sent again.</source>
        <translation>已寫入 %1 位元組，耗時 %2 秒；重送封包 %3 / %4 個。</translation>
    </message>
    <message>
        <source>Reading the flash back found wrong bytes: %1, the first at %2.</source>
        <translation>回讀快閃記憶體時發現錯誤位元組：共 %1 個，第一個位於 %2。</translation>
    </message>
    <message>
        <source>The device was not restarted: this firmware must not run.</source>
        <translation>裝置未重新啟動：此韌體不可執行。</translation>
    </message>
    <message>
        <source>Reading the flash back was stopped.</source>
        <translation>快閃記憶體回讀已停止。</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>與裝置的連線已中斷。</translation>
    </message>
    <message>
        <source>Check the cable, open the port again and press Connect.</source>
        <translation>請檢查連接線，重新開啟序列埠，然後按一下「連線」。</translation>
    </message>
    <message>
        <source>Connecting to the bootloader…</source>
        <translation>正在連線至啟動載入程式…</translation>
    </message>
    <message>
        <source>Checking the image…</source>
        <translation>正在檢查映像檔…</translation>
    </message>
    <message>
        <source>Erasing the flash…</source>
        <translation>正在抹除快閃記憶體…</translation>
    </message>
    <message>
        <source>Writing the image…</source>
        <translation>正在寫入映像檔…</translation>
    </message>
    <message>
        <source>Reading the flash back…</source>
        <translation>正在回讀快閃記憶體…</translation>
    </message>
    <message>
        <source>Restarting the device…</source>
        <translation>正在重新啟動裝置…</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>正在等待裝置…</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>已驗證</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>未驗證</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>存疑</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Same build</source>
        <translation>版本未變</translation>
    </message>
    <message>
        <source>Did not come back</source>
        <translation>裝置未恢復</translation>
    </message>
    <message>
        <source>The device is back with its new firmware.</source>
        <translation>裝置已恢復，正在執行新韌體。</translation>
    </message>
    <message>
        <source>The device is back. If it does not work as it should, press Connect and download again.</source>
        <translation>裝置已恢復。如果運作不正常，請按一下「連線」並重新燒錄。</translation>
    </message>
    <message>
        <source>Press Connect and download again, at a higher baud rate if there is one.</source>
        <translation>請按一下「連線」並重新燒錄；如有更高的鮑率可用，請改用。</translation>
    </message>
    <message>
        <source>Unplug it and plug it in again, and open its port: the new firmware may use another baud rate. If its bootloader answers there, this window opens by itself.</source>
        <translation>請拔下裝置後重新插入，並開啟其序列埠：新韌體可能使用其他鮑率。如果啟動載入程式在該序列埠回應，此視窗會自動開啟。</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Before: %1 · Now: %2</source>
        <translation>先前：%1 · 現在：%2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 baud or more is also fast enough.</source>
        <translation>改用 %1 或更高的鮑率也夠快。</translation>
    </message>
    <message>
        <source>The bootloader accepts no data: it reports packets of %1 bytes.</source>
        <translation>啟動載入程式不接收資料：其回報的封包大小為 %1 位元組。</translation>
    </message>
    <message>
        <source>An earlier erase of this size took this chip more than 1.5 s, and the protocol waits no longer: it would be erased and not written.</source>
        <translation>此晶片先前抹除此大小耗時超過 1.5 秒，而協定最多等待 1.5 秒：晶片會被抹除，卻無法寫入。</translation>
    </message>
    <message>
        <source>The file has no end record: part of it may be missing.</source>
        <translation>檔案沒有結束記錄：可能缺少一部分內容。</translation>
    </message>
    <message>
        <source>Data after a blank line, where the image ends, would not be written.</source>
        <translation>映像檔到空行為止，空行之後的資料不會寫入。</translation>
    </message>
    <message>
        <source>Data after a start address or an unknown record, where the image ends, would not be written.</source>
        <translation>映像檔到起始位址記錄或未知記錄為止，該記錄之後的資料不會寫入。</translation>
    </message>
    <message>
        <source>Data after the end record would not be written.</source>
        <translation>結束記錄之後的資料不會寫入。</translation>
    </message>
    <message>
        <source>The image does not begin at the start of a sector (%1 bytes): what precedes it in the sector is erased too.</source>
        <translation>映像檔不是從磁區（%1 位元組）的起點開始：同一磁區中位於映像檔之前的內容也會被抹除。</translation>
    </message>
    <message>
        <source>The previous update was for %1, this one is for %2.</source>
        <translation>上次更新的位址為 %1，本次為 %2。</translation>
    </message>
    <message>
        <source>The stack pointer is not a word address in RAM.</source>
        <translation>堆疊指標不是 RAM 中以字組對齊的位址。</translation>
    </message>
    <message>
        <source>The reset vector is not a Thumb address inside the image.</source>
        <translation>重置向量不是映像檔範圍內的 Thumb 位址。</translation>
    </message>
    <message>
        <source>The image is very small for firmware.</source>
        <translation>以韌體而言，此映像檔過小。</translation>
    </message>
    <message>
        <source>Not verified: reading the flash back did not finish.</source>
        <translation>未驗證：快閃記憶體回讀未能完成。</translation>
    </message>
    <message>
        <source>The flash was read back and matches the image.</source>
        <translation>已回讀快閃記憶體：內容與映像檔一致。</translation>
    </message>
    <message>
        <source>The bootloader is still in the device: press Connect, then Download.</source>
        <translation>啟動載入程式仍在裝置中：請按一下「連線」，然後按一下「燒錄」。</translation>
    </message>
    <message>
        <source>The image was written, but not verified.</source>
        <translation>映像檔已寫入，但未經驗證。</translation>
    </message>
    <message>
        <source>The folder is not writable: after a crash there would have been no reminder.</source>
        <translation>資料夾無法寫入：假如更新期間程式當機，就不會有任何提醒。</translation>
    </message>
    <message>
        <source>But the device came back with its previous build.</source>
        <translation>但裝置恢復後，版本仍與先前相同。</translation>
    </message>
    <message>
        <source>Check that this is the right file.</source>
        <translation>請確認所選檔案是否正確。</translation>
    </message>
    <message>
        <source>Check that this is the right file, then press Connect and download again.</source>
        <translation>請確認所選檔案是否正確，然後按一下「連線」並重新燒錄。</translation>
    </message>
    <message>
        <source>But the device has not identified itself since its restart.</source>
        <translation>但裝置重新啟動後尚未回報本身的資訊。</translation>
    </message>
    <message>
        <source>The update of %1 with %2, started %3, was written completely but not verified.</source>
        <translation>以 %2 對 %1 進行的更新（開始於 %3）已全部寫入，但未經驗證。</translation>
    </message>
    <message>
        <source>The update of %1 with %2, started %3, was interrupted at %4 of %5 bytes.</source>
        <translation>以 %2 對 %1 進行的更新（開始於 %3）在 %4 / %5 位元組處中斷。</translation>
    </message>
</context>
</TS>
